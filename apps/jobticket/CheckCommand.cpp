#include <array>

#include "CommonOptions.h"
#include "OfferJson.h"
#include "PrinterOptions.h"
#include "ProblemListing.h"
#include "TicketDocument.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

std::string describeCount(std::size_t count) {
    return count == 0 ? "no problems"
                      : std::to_string(count) + (count == 1 ? " problem" : " problems");
}

std::string listForPeople(const TicketCheck& check) {
    return describePrinterForPeople(check.offers) + ": " + describeCount(check.problems.size()) +
           "\n" + listProblems(check.problems) + listOmissions(check.omissions);
}

std::string listAsJson(const TicketCheck& check) {
    return Json::object()
        .add("printer", describePrinter(check.offers))
        .add("problems", toJson(check.problems))
        .add("notes", toJson(check.omissions))
        .toText();
}

ExitStatus check(const Options& options) {
    const PrinterChoice printer = choosePrinter(options.printer);
    const std::string document = readFile(options.ticket);
    const TicketCheck check = checkTicket(readDocument(document, options.ticket), printer);
    if (options.repairs) {
        writeResult(options.output, repairTicket(document, options.ticket, printer));
    }
    const bool isTicketOnOutput = options.repairs && isStandardStream(options.output);
    writeListing(options.listsJson ? listAsJson(check) : listForPeople(check), isTicketOnOutput);
    return check.problems.empty() ? ExitStatus::success : ExitStatus::differences;
}

/// The user sees what there is, and may refuse a repair.
ExitStatus checkInDialog(const Options& options) {
    Session session(choosePrinter(options.printer));
    const std::string document = readFile(options.ticket);
    readDocument(document, options.ticket); // says what is wrong with it, if anything is
    const Session::Report report =
        session.importAndReportTicket(document, nameForMessages(options.ticket), options.repairs);
    if (options.repairs && report.isTaken) {
        writeResult(options.output, session.exportTicket());
    }
    return report.hadProblems ? ExitStatus::differences : ExitStatus::success;
}

ExitStatus run(const Options& options) {
    return options.showsDialog ? checkInDialog(options) : check(options);
}

constexpr std::array options = {
    ticketArgument,
    modelOption,
    languageOption,
    formOption,
    withHelp(jsonOption, "List the problems as JSON, for other programs"),
    Option{.names = "--dialog",
           .target = in<&Options::showsDialog>,
           .help = "Show the problems in a dialog; with --fix the user may refuse the repair, and "
                   "nothing is written then",
           .excludes = "--json"},
    Option{.names = "--fix",
           .target = in<&Options::repairs>,
           .help = "Repair the ticket, and write it"},
    Option{.names = outputOption.names,
           .operand = Operand::file,
           .target = outputOption.target,
           .help = "File to write the repaired ticket to; without it, standard output, and the "
                   "list goes to standard error",
           .needs = "--fix"}};

} // namespace

const Command checkCommand = {
    "check", "List what a printer can't do of a ticket; exit status 1 if there is anything",
    options, run,
    "jobticket check report.xml --model 43 --pdl ps\n"
    "jobticket check report.xml -m 43 -p ps --fix -o repaired.xml\n"};

} // namespace jobticket
