#include <CLI/CLI.hpp>

#include "Commands.h"
#include "Listing.h"
#include "PreferenceSetOptions.h"
#include "StateBlob.h"
#include "Text.h"
#include "TicketDocument.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

struct StateOptions {
    std::string input;
    std::string output = std::string(standardStream);
    PreferenceSetOptions preferences;
};

ExitStatus pack(const StateOptions& options) {
    Session session = openSession(options.preferences);
    importDocumentFile(session, options.input);
    writeFile(options.output, session.exportState());
    return ExitStatus::success;
}

ExitStatus unpack(const StateOptions& options) {
    Session session;
    session.importState(readFile(options.input), nameForMessages(options.input));
    writeFile(options.output, session.exportTicket());
    return ExitStatus::success;
}

ExitStatus renew(const StateOptions& options) {
    Session session = openSession(options.preferences);
    writeFile(options.output,
              session.renewState(readFile(options.input), nameForMessages(options.input)));
    return ExitStatus::success;
}

std::string yesOrNo(bool flag) { return flag ? "yes" : "no"; }

ExitStatus show(const StateOptions& options) {
    const StateBlob state = inspectState(readFile(options.input), nameForMessages(options.input));
    std::vector<std::vector<std::string>> rows = {
        {"Size", std::to_string(state.size) + " bytes"},
        {"Version", toUtf8(zent::CXString::Format(u"0x%.8lx", state.version))},
        {"Ticket in it", std::to_string(state.documentSize) + " bytes"},
        {"State tag", std::to_string(state.tag)},
    };
    if (state.user) {
        rows.push_back({"Logon name", toPrintable(state.user->logonName)});
        rows.push_back({"Job named as document", yesOrNo(state.user->useDocumentName)});
        rows.push_back({"Logon name is sender", yesOrNo(state.user->useLogonName)});
        rows.push_back({"Logon name is recipient", yesOrNo(state.user->useLogonNameRecipient)});
    } else {
        rows.push_back({"Logon name", "(none in this version: that of whoever reads it)"});
    }
    writeFile(std::string(standardStream), layOut(rows));
    return ExitStatus::success;
}

} // namespace

void addStateCommand(CLI::App& program, Action& action) {
    constexpr const char* ticketHelp = "Ticket file, or - for standard input";
    constexpr const char* blobHelp = "File of a state blob, or - for standard input";
    CLI::App* command = program.add_subcommand(
        "state", "Tickets as binary state blobs, which applications keep with a document or queue");
    command->require_subcommand(1);
    const auto options = std::make_shared<StateOptions>(); // of whichever command is given
    const auto add = [&](const char* name, const char* help, const char* input,
                         const char* inputHelp, ExitStatus (*run)(const StateOptions&)) {
        CLI::App* added = command->add_subcommand(name, help);
        added->add_option(input, options->input, inputHelp)->required();
        added->callback(
            [options, run, &action] { action = [options, run] { return run(*options); }; });
        return added;
    };
    const auto addOutput = [&](CLI::App& added) {
        added.add_option("-o,--output", options->output,
                         "File to write; without it, standard output");
    };
    CLI::App* packer = add("pack", "Make a blob of a ticket", "TICKET", ticketHelp, pack);
    addOutput(*packer);
    addPreferenceSetOptions(*packer, options->preferences);
    addOutput(*add("unpack", "Make a ticket of a blob", "BLOB", blobHelp, unpack));
    add("show", "List what a blob says besides the ticket: version, user", "BLOB", blobHelp, show);
    CLI::App* renewer =
        add("renew", "Put the present user and preferences into a blob", "BLOB", blobHelp, renew);
    addOutput(*renewer);
    addPreferenceSetOptions(*renewer, options->preferences);
}

} // namespace jobticket
