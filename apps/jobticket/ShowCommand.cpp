#include <array>

#include "AttributePath.h"
#include "Batch.h"
#include "CommonOptions.h"
#include "FeaturePath.h"
#include "Listing.h"
#include "Outline.h"
#include "Text.h"
#include "TicketDocument.h"
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

} // namespace jobticket
