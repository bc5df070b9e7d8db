#include <iostream>

#include <CLI/CLI.hpp>

#include "Commands.h"
#include "PreferenceSetOptions.h"
#include "TicketDocument.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

struct InstructionsOptions {
    std::string ticket;
    PreferenceSetOptions session;
    std::string document;
    std::string output = std::string(standardStream);
};

ExitStatus writeInstructions(const InstructionsOptions& options) {
    choosePrinter(options.session.printer); // other than for preferences it must be given
    Session session = openSession(options.session);
    if (importDocumentFile(session, options.ticket)) {
        std::cerr << "jobticket: note: the printer can't do all of the ticket; \"jobticket check\" "
                     "lists what, and --fix repairs it\n";
    }
    writeFile(options.output, session.getInstructions(options.document));
    return ExitStatus::success;
}

} // namespace

void addInstructionsCommand(CLI::App& program, Action& action) {
    CLI::App* command = program.add_subcommand(
        "instructions", "Write the printing instructions that go to a printer with a job");
    const auto options = std::make_shared<InstructionsOptions>();
    command->add_option("TICKET", options->ticket, "Ticket file, or - for standard input")
        ->required();
    addPreferenceSetOptions(*command, options->session);
    addFormOption(*command, options->session.printer);
    command->add_option(
        "--document", options->document,
        "The document's name, by which the job is called unless the preferences say "
        "otherwise");
    command->add_option("-o,--output", options->output,
                        "File to write; without it, standard output");
    command->callback(
        [options, &action] { action = [options] { return writeInstructions(*options); }; });
}

} // namespace jobticket
