#include <CLI/CLI.hpp>

#include "Commands.h"
#include "Listing.h"
#include "Outline.h"
#include "TicketDocument.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

struct ShowOptions {
    std::string ticket;
    bool raw = false;
};

std::string listForPeople(const std::vector<OutlineLine>& outline) {
    if (outline.empty()) {
        return "The ticket is empty.\n";
    }
    std::vector<std::vector<std::string>> rows;
    for (const OutlineLine& line : outline) {
        const std::string indent(std::size_t(2) * line.depth, ' ');
        rows.push_back({indent + line.label, line.text});
    }
    return layOut(rows);
}

std::string listForPrograms(const std::vector<OutlineLine>& outline) {
    std::string text;
    for (const OutlineLine& line : outline) {
        if (!line.isHeading) {
            text += line.path + "=" + line.value + "\n";
        }
    }
    return text;
}

ExitStatus show(const ShowOptions& options) {
    const std::vector<OutlineLine> outline = makeOutline(readDocumentFile(options.ticket));
    writeFile(std::string(standardStream),
              options.raw ? listForPrograms(outline) : listForPeople(outline));
    return ExitStatus::success;
}

} // namespace

void addShowCommand(CLI::App& program, Action& action) {
    CLI::App* command = program.add_subcommand("show", "List what a ticket says");
    const auto options = std::make_shared<ShowOptions>();
    command->add_option("TICKET", options->ticket, "Ticket file, or - for standard input")
        ->required();
    command->add_flag("--raw", options->raw,
                      "List names and values as \"jobticket set\" takes them, one a line");
    command->callback([options, &action] { action = [options] { return show(*options); }; });
}

} // namespace jobticket
