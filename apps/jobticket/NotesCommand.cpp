#include <CLI/CLI.hpp>

#include "Commands.h"
#include "PreferenceSetOptions.h"
#include "TicketDocument.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

struct NotesOptions {
    std::string ticket;
    PreferenceSetOptions session;
    std::string output; // empty: back to the ticket
};

ExitStatus editNotes(const NotesOptions& options) {
    choosePrinter(options.session.printer); // it says what the dialog offers
    Session session = openSession(options.session);
    importDocumentFile(session, options.ticket);
    const std::string before = session.exportTicket();
    session.showJobNotes();
    const std::string after = session.exportTicket();
    const std::string& target = options.output.empty() ? options.ticket : options.output;
    // A file is left alone if the user has given up.
    const bool isSameFile = target == options.ticket && target != standardStream;
    if (!isSameFile || after != before) {
        writeFile(target, after);
    }
    return ExitStatus::success;
}

} // namespace

void addNotesCommand(CLI::App& program, Action& action) {
    CLI::App* command = program.add_subcommand(
        "notes", "Edit a ticket's job notes in a dialog: name, account, people, messages");
    const auto options = std::make_shared<NotesOptions>();
    command->add_option("TICKET", options->ticket, "Ticket file, or - for standard input")
        ->required();
    addPreferenceSetOptions(*command, options->session);
    command->add_option("-o,--output", options->output,
                        "File to write, or - for standard output; without it, the ticket itself");
    command->callback([options, &action] { action = [options] { return editNotes(*options); }; });
}

} // namespace jobticket
