#include <algorithm>
#include <array>
#include <iostream>

#include "CommonOptions.h"
#include "Outline.h"
#include "PreferenceSetOptions.h"
#include "PrinterOptions.h"
#include "ProblemListing.h"
#include "StateBlob.h"
#include "Text.h"
#include "TicketDocument.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

void note(const std::string& text) {
    if (!text.empty()) {
        std::cerr << "jobticket: " << text;
    }
}

/// What a line says of a name that the ticket has and the instructions have not.
std::string describeReplacement(const std::vector<OutlineLine>& outline, const char* feature,
                                const std::string& logonName) {
    const auto line = std::ranges::find_if(outline, [&](const OutlineLine& each) {
        return each.path == feature && joinValues(each.values) != logonName;
    });
    return line == outline.end() || logonName.empty()
               ? ""
               : "note: " + line->label + " " + inQuotes(joinValues(line->values)) +
                     " gives way to the logon name " + inQuotes(logonName) +
                     "; --keep-names keeps it\n";
}

void noteReplacedNames(const zent::AttrNodeList& ticket, const zent::UserContext& user) {
    const std::vector<OutlineLine> outline = makeOutline(ticket);
    const std::string logonName = toUtf8(user.logonName);
    if (user.useLogonName) {
        note(describeReplacement(outline, "requesting-user-name", logonName));
    }
    if (user.useLogonNameRecipient) {
        note(describeReplacement(outline, "job-recipient-name", logonName));
    }
}

ExitStatus writeInstructions(const Options& options) {
    const PrinterChoice printer = choosePrinter(options.printer);
    const std::string document = readFile(options.ticket);
    const zent::AttrNodeList ticket = readDocument(document, options.ticket);
    Session session = openSession(options, printer);
    if (session.importTicket(document, nameForMessages(options.ticket))) {
        note("note: the printer can't do all of the ticket; \"jobticket check\" lists what, and "
             "--fix repairs it\n");
    }
    const std::string state = session.exportState();
    if (options.keepsNames) {
        session.importState(withoutLogonNames(state), options.ticket);
    } else {
        noteReplacedNames(ticket, inspectState(state, options.ticket).user.value());
    }
    const std::string instructions = session.getInstructions(options.document);
    note(listOmissions(findOmissions(ticket, printer)));
    writeResult(options.output, instructions);
    return ExitStatus::success;
}

constexpr std::array options = {
    ticketArgument,
    modelOption,
    languageOption,
    preferenceSetOption,
    printerPreferencesOption,
    Option{.names = "--keep-names",
           .target = in<&Options::keepsNames>,
           .help = "Leave sender and recipient as the ticket has them, whatever the preferences "
                   "say of the logon name"},
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
