#include <algorithm>
#include <array>
#include <iostream>
#include <set>

#include "Batch.h"
#include "Command.h"
#include "Listing.h"
#include "Offers.h"
#include "Outline.h"
#include "Printers.h"
#include "StateBlob.h"
#include "Text.h"
#include "TicketCheck.h"
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

std::string listAsJson(const TicketCheck& check, const std::string& ticket, bool isOneOfSeveral) {
    return startJson(ticket, isOneOfSeveral)
        .add("printer", describePrinter(check.offers))
        .add("problems", toJson(check.problems))
        .add("notes", toJson(check.omissions))
        .toText();
}

ExitStatus check(const Options& options, const PrinterChoice& printer, const std::string& ticket,
                 const std::string& result) {
    const std::string document = readFile(ticket);
    const TicketCheck check = checkTicket(readDocument(document, ticket), printer);
    if (options.repairs) {
        writeFile(result, repairTicket(document, ticket, printer));
    }
    const bool hasName = options.tickets.size() > 1;
    if (!options.isQuiet) {
        writeListing(options.listsJson
                         ? listAsJson(check, ticket, hasName)
                         : (hasName ? nameForMessages(ticket) + ": " : "") + listForPeople(check),
                     options.repairs && isStandardStream(result));
    }
    return check.problems.empty() ? ExitStatus::success : ExitStatus::differences;
}

/// Checks a ticket with a dialog, in which the user sees the problems and may refuse the repair.
ExitStatus checkInDialog(const Options& options, const PrinterChoice& printer,
                         const std::string& ticket, const std::string& result) {
    Session session(printer);
    const std::string document = readFile(ticket);
    readDocument(document, ticket); // raises an error that says where it is wrong
    const Session::Report report =
        session.importAndReportTicket(document, nameForMessages(ticket), options.repairs);
    if (options.repairs && report.isTaken) {
        writeFile(result, session.exportTicket());
    }
    return report.hadProblems ? ExitStatus::differences : ExitStatus::success;
}

struct PrinterResult {
    Model model;
    Offers offers;
    std::size_t problems;
};

/// Checks a ticket for all printers that have the language, or PCL without one. Those with the
/// fewest problems come first.
std::vector<PrinterResult> checkWithAll(const zent::AttrNodeList& ticket, const Options& options) {
    const std::vector<Model> models = getModels();
    std::vector<PrinterResult> results;
    Progress progress(models.size());
    for (const Model& model : models) {
        progress.show(results.size());
        PrinterOptions each = options.printer;
        each.model = std::to_string(model.number);
        if (each.language.empty() || hasLanguage(model, each.language)) {
            TicketCheck check = checkTicket(ticket, choosePrinter(each));
            results.push_back({model, std::move(check.offers), check.problems.size()});
        }
    }
    std::ranges::stable_sort(results, {}, &PrinterResult::problems);
    return results;
}

std::string listForPeople(const std::vector<PrinterResult>& results) {
    std::vector<Row> rows;
    rows.reserve(results.size());
    for (const PrinterResult& result : results) {
        rows.push_back({std::to_string(result.model.number), result.model.name,
                        describeCount(result.problems)});
    }
    return layOut(std::move(rows));
}

std::string listAsJson(const std::vector<PrinterResult>& results, const std::string& ticket,
                       bool isOneOfSeveral) {
    Json list = Json::array();
    for (const PrinterResult& result : results) {
        list.add(describePrinter(result.offers)
                     .add("problems", static_cast<std::uint32_t>(result.problems)));
    }
    return startJson(ticket, isOneOfSeveral).add("printers", list).toText();
}

ExitStatus checkAllPrinters(const Options& options, const std::string& ticket) {
    const std::vector<PrinterResult> results = checkWithAll(readDocumentFile(ticket), options);
    if (results.empty()) {
        throw ProgramError(ExitStatus::badValue,
                           "--pdl: no printer has " + inQuotes(options.printer.language));
    }
    const bool hasName = options.tickets.size() > 1;
    if (!options.isQuiet) {
        writeStandardOutput(options.listsJson ? listAsJson(results, ticket, hasName)
                                              : (hasName ? nameForMessages(ticket) + ":\n" : "") +
                                                    listForPeople(results));
    }
    return results.front().problems == 0 ? ExitStatus::success : ExitStatus::differences;
}

ExitStatus run(const Options& options) {
    if (options.checksAllPrinters) {
        return runOnEach(options.tickets, options.isQuiet, [&](const std::string& ticket) {
            return checkAllPrinters(options, ticket);
        });
    }
    const PrinterChoice printer = choosePrinter(options.printer);
    const std::vector<std::string> results =
        options.repairs ? chooseResultFiles(options.tickets, options.output)
                        : std::vector<std::string>(options.tickets.size());
    std::size_t next = 0;
    return runOnEach(options.tickets, options.isQuiet, [&](const std::string& ticket) {
        const auto how = options.showsDialog ? checkInDialog : check;
        return how(options, printer, ticket, results[next++]);
    });
}

constexpr std::array checkOptions = {
    ticketArguments,
    Option{.names = "--all-printers",
           .target = in<&Options::checksAllPrinters>,
           .help = "List which printers can do the ticket, with the number of problems of each",
           .excludes = "--model"},
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
           .help = "Repair the ticket, and write it",
           .excludes = "--all-printers"},
    Option{.names = outputOption.names,
           .operand = Operand::file,
           .target = outputOption.target,
           .help = "File to write the repaired ticket to; without it, standard output, and the "
                   "list goes to standard error. With several tickets it is the folder that they "
                   "go to",
           .needs = "--fix"},
    withHelp(quietOption, "No list: the exit status says all")};

} // namespace

const Command checkCommand = {
    "check", "List what a printer can't do of tickets; exit status 1 if there is anything",
    checkOptions, run,
    "jobticket check report.xml --model 43 --pdl ps\n"
    "jobticket check report.xml -m 43 -p ps --fix -o repaired.xml\n"
    "jobticket check report.xml --all-printers\n"
    "jobticket check -q *.xml -m 43 -p ps\n"};

namespace {

/// What moving a ticket from one printer to another changes in it.
struct Move {
    Offers from;
    Offers to;
    std::vector<Problem> lost;   // the first printer can do these
    std::vector<Problem> others; // neither printer can do these
};

Move compare(const zent::AttrNodeList& ticket, const PrinterChoice& from, const PrinterChoice& to) {
    TicketCheck before = checkTicket(ticket, from);
    TicketCheck after = checkTicket(ticket, to);
    std::set<std::string> problemsBefore;
    for (const Problem& problem : before.problems) {
        problemsBefore.insert(problem.path);
    }
    Move move = {std::move(before.offers), std::move(after.offers), {}, {}};
    for (Problem& problem : after.problems) {
        const bool isLost = !problemsBefore.contains(problem.path);
        (isLost ? move.lost : move.others).push_back(std::move(problem));
    }
    return move;
}

std::string listForPeople(const Move& move) {
    std::string text = describePrinterForPeople(move.from) + " -> " +
                       describePrinterForPeople(move.to) + ": " +
                       (move.lost.empty() ? "nothing" : std::to_string(move.lost.size())) +
                       " lost\n" + listProblems(move.lost);
    if (!move.others.empty()) {
        text += "Changed too, though " + move.from.printer +
                " can't do it either: " + std::to_string(move.others.size()) + "\n" +
                listProblems(move.others);
    }
    return text;
}

std::string listAsJson(const Move& move) {
    return Json::object()
        .add("from", describePrinter(move.from))
        .add("to", describePrinter(move.to))
        .add("lost", toJson(move.lost))
        .add("others", toJson(move.others))
        .toText();
}

ExitStatus retarget(const Options& options) {
    const PrinterChoice from = choosePrinter(options.from, {"--from", "--from-pdl", true});
    const PrinterChoice to = choosePrinter(options.to, {"--to", "--to-pdl", false});
    const std::string document = readFile(options.ticket);
    const Move move = compare(readDocument(document, options.ticket), from, to);
    writeResult(options.output, repairTicket(document, options.ticket, to));
    if (!options.isQuiet) {
        writeListing(options.listsJson ? listAsJson(move) : listForPeople(move),
                     isStandardStream(options.output));
    }
    return move.lost.empty() && move.others.empty() ? ExitStatus::success : ExitStatus::differences;
}

constexpr std::array retargetOptions = {
    ticketArgument,
    Option{.names = "--from",
           .operand = Operand::model,
           .target = in<&Options::from, &PrinterOptions::model>,
           .help = "The printer that the ticket was made for, by number or name"},
    Option{.names = "--from-pdl",
           .operand = Operand::language,
           .target = in<&Options::from, &PrinterOptions::language>,
           .help = "Its page description language; without it, pcl"},
    Option{.names = "--to",
           .operand = Operand::model,
           .target = in<&Options::to, &PrinterOptions::model>,
           .help = "The printer that is to do the job"},
    Option{.names = "--to-pdl",
           .operand = Operand::language,
           .target = in<&Options::to, &PrinterOptions::language>,
           .help = "Its page description language; without it, pcl"},
    withHelp(jsonOption, "List what is lost as JSON, for other programs"),
    withHelp(outputOption, "File to write the ticket to; without it, standard output, and the list "
                           "goes to standard error"),
    withHelp(quietOption, "No list: the exit status says all")};

} // namespace

const Command retargetCommand = {
    "retarget",
    "Repair a ticket for another printer, and list what is lost; exit status 1 if there is "
    "anything",
    retargetOptions, retarget,
    "jobticket retarget report.xml --from 43 --to \"Lumaset 430\" -o other.xml\n"};

namespace {

void note(const Options& options, const std::string& text) {
    if (!text.empty() && !options.isQuiet) {
        std::cerr << "jobticket: " << text;
    }
}

/// The note about a name of the ticket that the logon name replaces in the instructions.
std::string describeReplacement(const std::vector<OutlineLine>& outline, const char* feature,
                                const std::string& logonName) {
    const auto line = std::ranges::find_if(outline, [&](const OutlineLine& each) {
        return each.path == feature && joinValues(each.values) != logonName;
    });
    return line == outline.end() || logonName.empty()
               ? ""
               : "note: " + line->label + " " + inQuotes(joinValues(line->values)) +
                     " gives way to the logon name " + inQuotes(logonName) +
                     "; --keep-names keeps it\n";
}

void noteReplacedNames(const Options& options, const zent::AttrNodeList& ticket,
                       const zent::UserContext& user) {
    const std::vector<OutlineLine> outline = makeOutline(ticket);
    const std::string logonName = toUtf8(user.logonName);
    if (user.useLogonName) {
        note(options, describeReplacement(outline, "requesting-user-name", logonName));
    }
    if (user.useLogonNameRecipient) {
        note(options, describeReplacement(outline, "job-recipient-name", logonName));
    }
}

ExitStatus writeInstructions(const Options& options, const PrinterChoice& printer,
                             const std::string& name, const std::string& result) {
    const std::string document = readFile(name);
    const zent::AttrNodeList ticket = readDocument(document, name);
    Session session = openSession(options, printer);
    if (session.importTicket(document, nameForMessages(name))) {
        note(options,
             "note: the printer can't do all of the ticket; \"jobticket check\" lists what, and "
             "--fix repairs it\n");
    }
    const std::string state = session.exportState();
    if (options.keepsNames) {
        session.importState(withoutLogonNames(state), name);
    } else {
        noteReplacedNames(options, ticket, inspectState(state, name).user.value());
    }
    const std::string instructions = session.getInstructions(options.document);
    note(options, listOmissions(findOmissions(ticket, printer)));
    writeFile(result, instructions);
    return ExitStatus::success;
}

/// Writes the instructions for all tickets. The form that the printer takes decides between ".xml"
/// and ".txt" for the names of several results.
ExitStatus writeAll(const Options& options) {
    const PrinterChoice printer = choosePrinter(options.printer);
    const bool isXml = getOffers(printer).choice.form == ZENT_INSTRUCTIONS_XML;
    const std::vector<std::string> results =
        chooseResultFiles(options.tickets, options.output, isXml ? ".xml" : ".txt");
    std::size_t next = 0;
    return runOnEach(options.tickets, options.isQuiet, [&](const std::string& ticket) {
        return writeInstructions(options, printer, ticket, results[next++]);
    });
}

constexpr std::array options = {
    ticketArguments,
    modelOption,
    languageOption,
    preferenceSetOption,
    printerPreferencesOption,
    Option{.names = "--keep-names",
           .target = in<&Options::keepsNames>,
           .help = "Leave sender and recipient as the ticket has them, whatever the preferences "
                   "say of the logon name"},
    formOption,
    Option{
        .names = "--document",
        .operand = Operand::text,
        .target = in<&Options::document>,
        .help =
            "The document's name, by which the job is called unless the preferences say otherwise"},
    withHelp(outputOption, "File to write; without it, standard output. With several tickets it is "
                           "the folder that the instructions go to, as NAME.xml or NAME.txt"),
    quietOption};

} // namespace

const Command instructionsCommand = {
    "instructions", "Write the printing instructions that go to a printer with a job", options,
    writeAll, "jobticket instructions report.xml -m 43 -p ps --document report.ps\n"};

} // namespace jobticket
