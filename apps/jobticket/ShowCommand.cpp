#include <CLI/CLI.hpp>

#include "Commands.h"
#include "Listing.h"
#include "Outline.h"
#include "Text.h"
#include "TicketDocument.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

struct ShowOptions {
    std::string ticket;
    bool raw = false;
    bool json = false;
};

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

ExitStatus show(const ShowOptions& options) {
    const std::vector<OutlineLine> outline = makeOutline(readDocumentFile(options.ticket));
    std::string text;
    if (options.json) {
        text = Json::object().add("features", toJson(outline)).toText();
    } else {
        text = options.raw ? listForPrograms(outline) : listForPeople(outline);
    }
    writeFile(std::string(standardStream), text);
    return ExitStatus::success;
}

} // namespace

void addShowCommand(CLI::App& program, Action& action) {
    CLI::App* command = program.add_subcommand("show", "List what a ticket says");
    const auto options = std::make_shared<ShowOptions>();
    command->add_option("TICKET", options->ticket, "Ticket file, or - for standard input")
        ->required();
    CLI::Option* raw = command->add_flag(
        "--raw", options->raw, "List names and values as \"jobticket set\" takes them, one a line");
    command->add_flag("--json", options->json, "The same as JSON, for other programs")
        ->excludes(raw);
    command->callback([options, &action] { action = [options] { return show(*options); }; });
}

} // namespace jobticket
