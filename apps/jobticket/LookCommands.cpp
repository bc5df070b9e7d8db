#include <algorithm>
#include <array>
#include <map>

#include "Assignment.h"
#include "Batch.h"
#include "Command.h"
#include "Listing.h"
#include "Outline.h"
#include "Text.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

std::string listForPeople(const std::vector<OutlineLine>& outline) {
    if (outline.empty()) {
        return "The ticket is empty.\n";
    }
    std::vector<std::vector<std::string>> rows;
    for (const OutlineLine& line : outline) {
        const std::string indent(std::size_t(2) * line.depth, ' ');
        rows.push_back({indent + line.label, joinTexts(line.values)});
    }
    return layOut(rows);
}

std::string listForPrograms(const std::vector<OutlineLine>& outline) {
    std::string text;
    for (const OutlineLine& line : outline) {
        if (!line.isHeading) {
            text += line.path + "=" + toPrintable(joinValues(line.values)) + "\n";
        }
    }
    return text;
}

/// Of several tickets each has its name, above it or in a document of its own.
std::string list(const std::vector<OutlineLine>& outline, const std::string& ticket,
                 const Options& options) {
    const bool hasName = options.tickets.size() > 1;
    if (options.listsJson) {
        return startJson(ticket, hasName).add("features", toJson(outline)).toText();
    }
    return (hasName ? nameForMessages(ticket) + ":\n" : "") +
           (options.listsRaw ? listForPrograms(outline) : listForPeople(outline)) +
           (hasName ? "\n" : "");
}

ExitStatus show(const Options& options) {
    return runOnEach(options.tickets, options.isQuiet, [&](const std::string& ticket) {
        const std::vector<OutlineLine> outline = makeOutline(readDocumentFile(ticket));
        writeStandardOutput(list(outline, ticket, options));
        return ExitStatus::success;
    });
}

/// The lines of a listing that a path stands for: of a feature its own, of a collection those of
/// its members.
std::vector<const OutlineLine*> findLines(const std::vector<OutlineLine>& outline,
                                          const std::string& path) {
    const bool isFeature = !namesAttribute(path);
    const std::optional<Feature> feature =
        isFeature ? std::optional(parsePath(path).back().feature) : std::nullopt;
    const std::size_t dot = path.rfind('.') + 1; // 0 without one
    std::vector<const OutlineLine*> lines;
    for (const OutlineLine& line : outline) {
        const std::string name = line.path.substr(line.path.rfind('.') + 1);
        const bool isMember =
            feature && feature->getKind() == ValueKind::collection && !feature->isPageLevel() &&
            Feature::exists(name) && Feature::named(name).isMemberOf(*feature) &&
            line.path.size() == dot + name.size() && line.path.starts_with(path.substr(0, dot));
        if (!line.isHeading &&
            (line.path == path || isMember || line.path.starts_with(path + '.') ||
             line.path.starts_with(path + '['))) {
            lines.push_back(&line);
        }
    }
    return lines;
}

ExitStatus get(const Options& options) {
    const std::vector<OutlineLine> outline = makeOutline(readDocumentFile(options.ticket));
    const std::vector<const OutlineLine*> lines = findLines(outline, options.pattern);
    if (lines.empty()) {
        checkIsKnown(options.pattern);
    }
    const bool isAlone = lines.size() == 1 && lines.front()->path == options.pattern;
    std::string text;
    for (const OutlineLine* line : lines) {
        text += (isAlone ? "" : line->path + "=") + toPrintable(joinValues(line->values)) + "\n";
    }
    writeStandardOutput(text);
    return lines.empty() ? ExitStatus::differences : ExitStatus::success;
}

constexpr std::array showOptions = {
    ticketArguments,
    Option{.names = "--raw",
           .target = in<&Options::listsRaw>,
           .help = "List names and values as \"jobticket set\" takes them, one a line",
           .excludes = "--json"},
    jsonOption, quietOption};
constexpr std::array getOptions = {ticketArgument,
                                   Option{.names = "FEATURE",
                                          .operand = Operand::path,
                                          .target = in<&Options::pattern>,
                                          .help = "A feature, or a collection of some",
                                          .isRequired = true}};

} // namespace

const Command showCommand = {"show", "List what tickets say", showOptions, show,
                             "jobticket show report.xml\n"
                             "jobticket show --raw report.xml\n"};

const Command getCommand = {"get", "Print the value of a feature; exit status 1 if it isn't set",
                            getOptions, get,
                            "jobticket get report.xml copies\n"
                            "jobticket get report.xml media-col\n"};

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

constexpr std::array diffOptions = {ticketArgument,
                                    Option{.names = "OTHER",
                                           .operand = Operand::file,
                                           .target = in<&Options::otherTicket>,
                                           .help = "The ticket to compare it with",
                                           .isRequired = true},
                                    jsonOption,
                                    withHelp(quietOption, "No list: the exit status says all")};

} // namespace

const Command diffCommand = {
    "diff", "Compare two tickets, feature by feature; exit status 1 if they differ", diffOptions,
    diff, "jobticket unset report.xml finishings | jobticket diff report.xml -\n"};

} // namespace jobticket
