#include <CLI/CLI.hpp>

#include "Assignment.h"
#include "Commands.h"
#include "Session.h"
#include "TicketDocument.h"
#include "TicketEditor.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

constexpr const char* aboutPaths = R"(Addressing:
  A feature is named as "jobticket features" lists it. In a set, NAME[N] picks one value, from
  [0] on; [N] behind the last appends. Covers, inserts and exception pages hold features of their
  own: cover-front.media-color, insert-sheet[0].insert-count, page-overrides[1].sides.
)";

constexpr const char* aboutValues = R"(Values:
  keyword     one of the feature's values; features with "or own name" take any text
  name, text  any text; quote it for the shell
  number      a 32-bit number; lengths and shifts in hundredths of a millimetre (500), or in
              millimetres (5mm)
  range       3-7, or 3 for a single one
  resolution  600dpi, 600x1200dpi, 240dpcm: across the feed, along it, and the unit
  size        21000x29700 in hundredths of a millimetre, 210x297mm, or SIZE_A4
  A feature that holds a set takes several with commas between them: page-ranges=1-5,8-9.
)";

struct EditOptions {
    std::string input;
    std::vector<std::string> edits;
    std::string output = std::string(standardStream);
    bool all = false;
};

/// Reads a ticket, edits it, writes it. Nothing is written unless all went well.
template <typename Edit>
ExitStatus editTicket(const EditOptions& options, const Edit& edit) {
    Session session;
    importDocumentFile(session, options.input);
    Ticket ticket = session.getTicket();
    edit(ticket);
    writeFile(options.output, session.exportTicket());
    return ExitStatus::success;
}

ExitStatus set(const EditOptions& options) {
    std::vector<Assignment> assignments;
    for (const std::string& text : options.edits) {
        assignments.push_back(parseAssignment(text));
        hintAtMisspelling(assignments.back());
    }
    return editTicket(options, [&](Ticket& ticket) {
        for (const Assignment& assignment : assignments) {
            setValues(ticket, assignment.path, assignment.values);
        }
    });
}

ExitStatus unset(const EditOptions& options) {
    std::vector<FeaturePath> paths;
    for (const std::string& text : options.edits) {
        paths.push_back(parsePath(text));
    }
    return editTicket(options, [&](Ticket& ticket) {
        if (options.all) {
            ticket.removeAll();
        }
        for (const FeaturePath& path : paths) {
            removeValues(ticket, path);
        }
    });
}

std::shared_ptr<EditOptions> addEditOptions(CLI::App& command, const char* editName,
                                            const char* editHelp) {
    auto options = std::make_shared<EditOptions>();
    command.add_option("TICKET", options->input, "Ticket file, or - for standard input")
        ->required();
    command.add_option(editName, options->edits, editHelp);
    command.add_option("-o,--output", options->output,
                       "File to write; without it, standard output. It may be the ticket itself");
    return options;
}

} // namespace

void addSetCommand(CLI::App& program, Action& action) {
    CLI::App* command = program.add_subcommand("set", "Set features of a ticket");
    const auto options =
        addEditOptions(*command, "FEATURE=VALUE", "What to set, as in copies=2 sides=one-sided");
    command->footer(std::string(aboutPaths) + "\n" + aboutValues);
    command->callback([options, &action] { action = [options] { return set(*options); }; });
}

void addUnsetCommand(CLI::App& program, Action& action) {
    CLI::App* command = program.add_subcommand("unset", "Remove features from a ticket");
    const auto options = addEditOptions(*command, "FEATURE", "What to remove");
    command->add_flag("--all", options->all, "Remove everything: gives an empty ticket");
    command->footer(aboutPaths);
    command->callback([options, &action] { action = [options] { return unset(*options); }; });
}

} // namespace jobticket
