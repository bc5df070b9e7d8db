#include <array>

#include "CommonOptions.h"
#include "PreferenceSetOptions.h"
#include "PrinterOptions.h"
#include "TicketDocument.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

ExitStatus editNotes(const Options& options) {
    Session session = openSession(options, choosePrinter(options.printer));
    importDocumentFile(session, options.ticket);
    const std::string before = session.exportTicket();
    session.showJobNotes();
    const std::string after = session.exportTicket();
    const std::string target = options.output.value_or(options.ticket);
    // A file is left alone if the user has given up.
    const bool isSameFile = target == options.ticket && target != standardStream;
    if (!isSameFile || after != before) {
        writeFile(target, after);
    }
    return ExitStatus::success;
}

constexpr std::array options = {
    ticketArgument,
    modelOption,
    languageOption,
    preferenceSetOption,
    printerPreferencesOption,
    withHelp(outputOption,
             "File to write, or - for standard output; without it, the ticket itself")};

} // namespace

const Command notesCommand = {
    "notes", "Edit a ticket's job notes in a dialog: name, account, people, messages", options,
    editNotes, "jobticket notes report.xml --model 43\n"};

} // namespace jobticket
