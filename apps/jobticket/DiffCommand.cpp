#include <algorithm>
#include <array>
#include <map>

#include "CommonOptions.h"
#include "Listing.h"
#include "Outline.h"
#include "TicketDocument.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

struct Sides {
    const OutlineLine* first = nullptr;
    const OutlineLine* second = nullptr;
};

using Row = std::vector<std::string>;

std::string valueOf(const OutlineLine* line) {
    return line == nullptr ? "(not set)" : joinValues(line->values);
}

/// One row for each feature that the two tickets don't agree on, in the order of the first ticket
/// and then of the second. The order of features says nothing about the job, so it isn't compared.
std::vector<Row> compare(const std::vector<OutlineLine>& first,
                         const std::vector<OutlineLine>& second) {
    std::map<std::string, Sides> byPath;
    std::vector<std::string> order;
    const auto note = [&](const OutlineLine& line, const OutlineLine* Sides::*side) {
        if (!line.isHeading) {
            if (!byPath.contains(line.path)) {
                order.push_back(line.path);
            }
            byPath[line.path].*side = &line;
        }
    };
    std::for_each(first.begin(), first.end(), [&](const auto& line) { note(line, &Sides::first); });
    std::for_each(second.begin(), second.end(),
                  [&](const auto& line) { note(line, &Sides::second); });

    std::vector<Row> rows;
    for (const std::string& path : order) {
        const Sides& sides = byPath[path];
        const std::string before = valueOf(sides.first);
        const std::string after = valueOf(sides.second);
        if (sides.first == nullptr || sides.second == nullptr || before != after) {
            rows.push_back({path, before + " -> " + after});
        }
    }
    return rows;
}

ExitStatus diff(const Options& options) {
    if (options.ticket == standardStream && options.otherTicket == standardStream) {
        throw ProgramError(ExitStatus::usage, "only one of the two tickets can be standard input");
    }
    const std::vector<OutlineLine> first = makeOutline(readDocumentFile(options.ticket));
    const std::vector<OutlineLine> second = makeOutline(readDocumentFile(options.otherTicket));
    const std::vector<Row> rows = compare(first, second);
    writeStandardOutput(layOut(rows));
    return rows.empty() ? ExitStatus::success : ExitStatus::differences;
}

constexpr std::array options = {ticketArgument, Option{.names = "OTHER",
                                                       .operand = Operand::file,
                                                       .target = in<&Options::otherTicket>,
                                                       .help = "The ticket to compare it with",
                                                       .isRequired = true}};

} // namespace

const Command diffCommand = {
    "diff", "Compare two tickets, feature by feature; exit status 1 if they differ", options, diff,
    "jobticket unset report.xml finishings | jobticket diff report.xml -\n"};

} // namespace jobticket
