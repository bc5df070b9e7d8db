#include <set>

#include <CLI/CLI.hpp>

#include "Commands.h"
#include "OfferJson.h"
#include "PrinterOptions.h"
#include "ProblemListing.h"
#include "TicketDocument.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

struct RetargetOptions {
    std::string ticket;
    PrinterOptions from;
    PrinterOptions to;
    bool json = false;
    std::string output = std::string(standardStream);
};

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

ExitStatus retarget(const RetargetOptions& options) {
    const PrinterChoice from = choosePrinter(options.from, {"--from", "--from-pdl"});
    const PrinterChoice to = choosePrinter(options.to, {"--to", "--to-pdl"});
    const std::string document = readFile(options.ticket);
    const Move move = compare(readDocument(document, options.ticket), from, to);
    writeFile(options.output, repairTicket(document, options.ticket, to));
    writeListing(options.json ? listAsJson(move) : listForPeople(move),
                 options.output == standardStream);
    return move.lost.empty() && move.others.empty() ? ExitStatus::success : ExitStatus::differences;
}

} // namespace

void addRetargetCommand(CLI::App& program, Action& action) {
    CLI::App* command = program.add_subcommand(
        "retarget", "Repair a ticket for another printer, and list what is lost; exit status 1 if "
                    "there is anything");
    const auto options = std::make_shared<RetargetOptions>();
    command->add_option("TICKET", options->ticket, "Ticket file, or - for standard input")
        ->required();
    command->add_option("--from", options->from.model,
                        "The printer that the ticket was made for, by number or name");
    command->add_option("--from-pdl", options->from.language,
                        "Its page description language; without it, pcl");
    command->add_option("--to", options->to.model, "The printer that is to do the job");
    command->add_option("--to-pdl", options->to.language,
                        "Its page description language; without it, pcl");
    command->add_flag("--json", options->json, "List what is lost as JSON, for other programs");
    command->add_option("-o,--output", options->output,
                        "File to write the ticket to; without it, standard output, and the list "
                        "goes to standard error");
    command->callback([options, &action] { action = [options] { return retarget(*options); }; });
}

} // namespace jobticket
