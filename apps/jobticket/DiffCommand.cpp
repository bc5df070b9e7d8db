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

struct Difference {
    std::string path;
    Sides sides; // of which one may be null
};

std::string valueOf(const OutlineLine* line) {
    return line == nullptr ? "(not set)" : joinValues(line->values);
}

/// The features that the two tickets don't agree on, in the order of the first ticket
/// and then of the second. The order of features says nothing about the job, so it isn't compared.
std::vector<Difference> compare(const std::vector<OutlineLine>& first,
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

    std::vector<Difference> differences;
    for (const std::string& path : order) {
        const Sides& sides = byPath[path];
        if (sides.first == nullptr || sides.second == nullptr ||
            joinValues(sides.first->values) != joinValues(sides.second->values)) {
            differences.push_back({path, sides});
        }
    }
    return differences;
}

std::string listForPeople(const std::vector<Difference>& differences) {
    std::vector<std::vector<std::string>> rows;
    rows.reserve(differences.size());
    for (const auto& [path, sides] : differences) {
        rows.push_back({path, valueOf(sides.first) + " -> " + valueOf(sides.second)});
    }
    return layOut(rows);
}

std::string listAsJson(const std::vector<Difference>& differences) {
    Json list = Json::array();
    for (const auto& [path, sides] : differences) {
        Json json = Json::object().add("path", path);
        if (sides.first != nullptr) {
            json.add("first", toJson(sides.first->values));
        }
        if (sides.second != nullptr) {
            json.add("second", toJson(sides.second->values));
        }
        list.add(json);
    }
    return Json::object().add("differences", list).toText();
}

ExitStatus diff(const Options& options) {
    if (options.ticket == standardStream && options.otherTicket == standardStream) {
        throw ProgramError(ExitStatus::usage, "only one of the two tickets can be standard input");
    }
    const std::vector<OutlineLine> first = makeOutline(readDocumentFile(options.ticket));
    const std::vector<OutlineLine> second = makeOutline(readDocumentFile(options.otherTicket));
    const std::vector<Difference> differences = compare(first, second);
    if (!options.isQuiet) {
        writeStandardOutput(options.listsJson ? listAsJson(differences)
                                              : listForPeople(differences));
    }
    return differences.empty() ? ExitStatus::success : ExitStatus::differences;
}

constexpr std::array options = {ticketArgument,
                                Option{.names = "OTHER",
                                       .operand = Operand::file,
                                       .target = in<&Options::otherTicket>,
                                       .help = "The ticket to compare it with",
                                       .isRequired = true},
                                jsonOption,
                                withHelp(quietOption, "No list: the exit status says all")};

} // namespace

const Command diffCommand = {
    "diff", "Compare two tickets, feature by feature; exit status 1 if they differ", options, diff,
    "jobticket unset report.xml finishings | jobticket diff report.xml -\n"};

} // namespace jobticket
