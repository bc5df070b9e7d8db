#include <array>

#include "CommonOptions.h"
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

ExitStatus show(const Options& options) {
    const std::vector<OutlineLine> outline = makeOutline(readDocumentFile(options.ticket));
    std::string text;
    if (options.listsJson) {
        text = Json::object().add("features", toJson(outline)).toText();
    } else {
        text = options.listsRaw ? listForPrograms(outline) : listForPeople(outline);
    }
    writeStandardOutput(text);
    return ExitStatus::success;
}

constexpr std::array options = {
    ticketArgument,
    Option{.names = "--raw",
           .target = in<&Options::listsRaw>,
           .help = "List names and values as \"jobticket set\" takes them, one a line",
           .excludes = "--json"},
    jsonOption};

} // namespace

const Command showCommand = {"show", "List what a ticket says", options, show,
                             "jobticket show report.xml\n"
                             "jobticket show --raw report.xml\n"};

} // namespace jobticket
