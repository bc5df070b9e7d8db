#include <algorithm>
#include <array>
#include <iostream>

#include "Batch.h"
#include "Command.h"
#include "Offers.h"
#include "Outline.h"
#include "Printers.h"
#include "StateBlob.h"
#include "Text.h"
#include "TicketCheck.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

void note(const Options& options, const std::string& text) {
    if (!text.empty() && !options.isQuiet) {
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

void noteReplacedNames(const Options& options, const zent::AttrNodeList& ticket,
                       const zent::UserContext& user) {
    const std::vector<OutlineLine> outline = makeOutline(ticket);
    const std::string logonName = toUtf8(user.logonName);
    if (user.useLogonName) {
        note(options, describeReplacement(outline, "requesting-user-name", logonName));
    }
    if (user.useLogonNameRecipient) {
        note(options, describeReplacement(outline, "job-recipient-name", logonName));
    }
}

ExitStatus writeInstructions(const Options& options, const PrinterChoice& printer,
                             const std::string& name, const std::string& result) {
    const std::string document = readFile(name);
    const zent::AttrNodeList ticket = readDocument(document, name);
    Session session = openSession(options, printer);
    if (session.importTicket(document, nameForMessages(name))) {
        note(options,
             "note: the printer can't do all of the ticket; \"jobticket check\" lists what, and "
             "--fix repairs it\n");
    }
    const std::string state = session.exportState();
    if (options.keepsNames) {
        session.importState(withoutLogonNames(state), name);
    } else {
        noteReplacedNames(options, ticket, inspectState(state, name).user.value());
    }
    const std::string instructions = session.getInstructions(options.document);
    note(options, listOmissions(findOmissions(ticket, printer)));
    writeFile(result, instructions);
    return ExitStatus::success;
}

/// By what form a printer takes, results of several tickets are XML documents or lines of text.
ExitStatus writeAll(const Options& options) {
    const PrinterChoice printer = choosePrinter(options.printer);
    const bool isXml = getOffers(printer).choice.form == ZENT_INSTRUCTIONS_XML;
    const std::vector<std::string> results =
        chooseResultFiles(options.tickets, options.output, isXml ? ".xml" : ".txt");
    std::size_t next = 0;
    return runOnEach(options.tickets, options.isQuiet, [&](const std::string& ticket) {
        return writeInstructions(options, printer, ticket, results[next++]);
    });
}

constexpr std::array options = {
    ticketArguments,
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
    withHelp(outputOption, "File to write; without it, standard output. With several tickets it is "
                           "the folder that the instructions go to, as NAME.xml or NAME.txt"),
    quietOption};

} // namespace

const Command instructionsCommand = {
    "instructions", "Write the printing instructions that go to a printer with a job", options,
    writeAll, "jobticket instructions report.xml -m 43 -p ps --document report.ps\n"};

} // namespace jobticket
