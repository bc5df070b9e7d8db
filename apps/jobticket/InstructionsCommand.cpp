#include <array>
#include <iostream>

#include "CommonOptions.h"
#include "PreferenceSetOptions.h"
#include "PrinterOptions.h"
#include "TicketDocument.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

ExitStatus writeInstructions(const Options& options) {
    choosePrinter(options.printer); // other than for preferences it must be given
    Session session = openSession(options);
    if (importDocumentFile(session, options.ticket)) {
        std::cerr << "jobticket: note: the printer can't do all of the ticket; \"jobticket check\" "
                     "lists what, and --fix repairs it\n";
    }
    writeResult(options.output, session.getInstructions(options.document));
    return ExitStatus::success;
}

constexpr std::array options = {
    ticketArgument,
    modelOption,
    languageOption,
    preferenceSetOption,
    sharedPreferencesOption,
    formOption,
    Option{
        .names = "--document",
        .operand = Operand::text,
        .target = in<&Options::document>,
        .help =
            "The document's name, by which the job is called unless the preferences say otherwise"},
    outputOption};

} // namespace

const Command instructionsCommand = {
    "instructions", "Write the printing instructions that go to a printer with a job", options,
    writeInstructions, "jobticket instructions report.xml -m 43 -p ps --document report.ps\n"};

} // namespace jobticket
