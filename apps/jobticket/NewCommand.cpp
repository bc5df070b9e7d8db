#include <CLI/CLI.hpp>

#include "Commands.h"
#include "PrinterOptions.h"
#include "Session.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

struct NewOptions {
    PrinterOptions printer;
    std::string output = std::string(standardStream);
};

ExitStatus makeTicket(const NewOptions& options) {
    Session session(choosePrinter(options.printer));
    writeFile(options.output, session.exportTicket());
    return ExitStatus::success;
}

} // namespace

void addNewCommand(CLI::App& program, Action& action) {
    CLI::App* command =
        program.add_subcommand("new", "Make a ticket that holds a printer's defaults");
    const auto options = std::make_shared<NewOptions>();
    addPrinterOptions(*command, options->printer);
    command->add_option("-o,--output", options->output,
                        "File to write; without it, standard output");
    command->callback([options, &action] { action = [options] { return makeTicket(*options); }; });
}

} // namespace jobticket
