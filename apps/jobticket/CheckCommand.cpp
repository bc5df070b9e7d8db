#include <CLI/CLI.hpp>

#include "Commands.h"
#include "OfferJson.h"
#include "PrinterOptions.h"
#include "ProblemListing.h"
#include "TicketDocument.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

struct CheckOptions {
    std::string ticket;
    PrinterOptions printer;
    bool json = false;
    bool dialog = false;
    bool fix = false;
    std::string output = std::string(standardStream);
};

std::string describeCount(std::size_t count) {
    return count == 0 ? "no problems"
                      : std::to_string(count) + (count == 1 ? " problem" : " problems");
}

std::string listForPeople(const TicketCheck& check) {
    return describePrinterForPeople(check.offers) + ": " + describeCount(check.problems.size()) +
           "\n" + listProblems(check.problems);
}

std::string listAsJson(const TicketCheck& check) {
    return Json::object()
        .add("printer", describePrinter(check.offers))
        .add("problems", toJson(check.problems))
        .toText();
}

ExitStatus check(const CheckOptions& options) {
    const PrinterChoice printer = choosePrinter(options.printer);
    const std::string document = readFile(options.ticket);
    const TicketCheck check = checkTicket(readDocument(document, options.ticket), printer);
    if (options.fix) {
        writeFile(options.output, repairTicket(document, options.ticket, printer));
    }
    const bool isTicketOnOutput = options.fix && options.output == standardStream;
    writeListing(options.json ? listAsJson(check) : listForPeople(check), isTicketOnOutput);
    return check.problems.empty() ? ExitStatus::success : ExitStatus::differences;
}

/// The user sees what there is, and may refuse a repair.
ExitStatus checkInDialog(const CheckOptions& options) {
    Session session(choosePrinter(options.printer));
    const std::string document = readFile(options.ticket);
    readDocument(document, options.ticket); // says what is wrong with it, if anything is
    const Session::Report report =
        session.importAndReportTicket(document, nameForMessages(options.ticket), options.fix);
    if (options.fix && report.isTaken) {
        writeFile(options.output, session.exportTicket());
    }
    return report.hadProblems ? ExitStatus::differences : ExitStatus::success;
}

} // namespace

void addCheckCommand(CLI::App& program, Action& action) {
    CLI::App* command = program.add_subcommand(
        "check", "List what a printer can't do of a ticket; exit status 1 if there is anything");
    const auto options = std::make_shared<CheckOptions>();
    command->add_option("TICKET", options->ticket, "Ticket file, or - for standard input")
        ->required();
    addPrinterOptions(*command, options->printer);
    CLI::Option* json =
        command->add_flag("--json", options->json, "List the problems as JSON, for other programs");
    command
        ->add_flag("--dialog", options->dialog,
                   "Show the problems in a dialog; with --fix the user may refuse the repair, and "
                   "nothing is written then")
        ->excludes(json);
    CLI::Option* fix = command->add_flag("--fix", options->fix, "Repair the ticket, and write it");
    command
        ->add_option("-o,--output", options->output,
                     "File to write the repaired ticket to; without it, standard output, and the "
                     "list goes to standard error")
        ->needs(fix);
    command->callback([options, &action] {
        action = [options] { return options->dialog ? checkInDialog(*options) : check(*options); };
    });
}

} // namespace jobticket
