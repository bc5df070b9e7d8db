#include <array>
#include <set>

#include "CommonOptions.h"
#include "OfferJson.h"
#include "PrinterOptions.h"
#include "ProblemListing.h"
#include "TicketDocument.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

/// What moving a ticket from one printer to another changes in it.
struct Move {
    Offers from;
    Offers to;
    std::vector<Problem> lost;   // what the first printer can do
    std::vector<Problem> others; // what neither can
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

constexpr std::array options = {
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
    options, retarget,
    "jobticket retarget report.xml --from 43 --to \"Lumaset 430\" -o other.xml\n"};

} // namespace jobticket
