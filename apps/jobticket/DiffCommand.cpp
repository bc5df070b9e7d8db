#include <algorithm>
#include <map>

#include <CLI/CLI.hpp>

#include "Commands.h"
#include "Listing.h"
#include "Outline.h"
#include "TicketDocument.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

struct DiffOptions {
    std::string first;
    std::string second;
};

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

ExitStatus diff(const DiffOptions& options) {
    if (options.first == standardStream && options.second == standardStream) {
        throw ProgramError(ExitStatus::usage, "only one of the two tickets can be standard input");
    }
    const std::vector<OutlineLine> first = makeOutline(readDocumentFile(options.first));
    const std::vector<OutlineLine> second = makeOutline(readDocumentFile(options.second));
    const std::vector<Row> rows = compare(first, second);
    writeFile(std::string(standardStream), layOut(rows));
    return rows.empty() ? ExitStatus::success : ExitStatus::differences;
}

} // namespace

void addDiffCommand(CLI::App& program, Action& action) {
    CLI::App* command =
        program.add_subcommand("diff", "Compare two tickets, feature by feature; exit status 1 if "
                                       "they differ");
    const auto options = std::make_shared<DiffOptions>();
    command->add_option("TICKET", options->first, "Ticket file, or - for standard input")
        ->required();
    command->add_option("OTHER", options->second, "The ticket to compare it with")->required();
    command->callback([options, &action] { action = [options] { return diff(*options); }; });
}

} // namespace jobticket
