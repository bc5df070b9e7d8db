#include "StateBlob.h"

#include <array>

#include "Command.h"
#include "Errors.h"
#include "Listing.h"
#include "Printers.h"
#include "Text.h"
#include "TicketFile.h"
#include "ocore/Compress/CompressedBuffer.h"
#include "ocore/Compress/PersistentSettings.h"
#include "ocore/Faults/TarvoException.h"

namespace jobticket {

namespace {

using zent::ByteBuffer;

constexpr std::size_t versionOffset = 4;
constexpr std::size_t tagOffset = 8; // in the header of the oldest form alone
constexpr std::size_t headerWithTag = 10;

/// A number of the header, little-endian.
std::uint32_t readNumber(const ByteBuffer& blob, std::size_t offset, std::size_t count) {
    ByteBuffer number(blob.data() + offset, count);
    number.resize(sizeof(std::uint32_t));
    return static_cast<std::uint32_t>(number.getAsLongValue());
}

/// Expands what lies compressed after the header.
ByteBuffer expandAfter(const ByteBuffer& blob, std::size_t header) {
    ByteBuffer content;
    if (blob.size() > header) {
        zent::CompressedBuffer(ByteBuffer(blob.data() + header, blob.size() - header))
            .getOriginalData(content);
    }
    return content;
}

StateBlob inspect(const ByteBuffer& blob) {
    // This raises an error unless all that is read below is there.
    const zent::PersistentSettings valid(blob, false);
    const std::size_t header = readNumber(blob, 0, versionOffset);
    const ByteBuffer content = expandAfter(blob, header);
    StateBlob state;
    state.size = blob.size();
    state.version = readNumber(blob, versionOffset, sizeof state.version);
    state.documentSize = content.size();
    if (header == headerWithTag) {
        state.tag = static_cast<std::uint16_t>(readNumber(blob, tagOffset, sizeof state.tag));
    } else {
        const zent::StateData data(content.data());
        state.documentSize -= zent::StateData::size;
        state.tag = data.getStateTag();
        state.user = data.getUserContext();
    }
    return state;
}

} // namespace

StateBlob inspectState(std::string_view bytes, const std::string& name) {
    try {
        return inspect(ByteBuffer(bytes.data(), bytes.size()));
    } catch (const zent::TarvoException& exception) {
        throw LibraryError(exception.getResultCode(), "reading", name);
    }
}

std::string withoutLogonNames(std::string_view bytes) {
    zent::PersistentSettings settings(ByteBuffer(bytes.data(), bytes.size()), true);
    zent::UserContext user = settings.getUserContext();
    user.useLogonName = false;
    user.useLogonNameRecipient = false;
    settings.setUserContext(user);
    const ByteBuffer blob = settings.getBuffer();
    return {reinterpret_cast<const char*>(blob.data()), blob.size()};
}

namespace {

ExitStatus pack(const Options& options) {
    Session session = openSession(options);
    importDocumentFile(session, options.ticket);
    writeResult(options.output, session.exportState());
    return ExitStatus::success;
}

ExitStatus unpack(const Options& options) {
    Session session;
    session.importState(readFile(options.ticket), nameForMessages(options.ticket));
    writeResult(options.output, session.exportTicket());
    return ExitStatus::success;
}

ExitStatus renew(const Options& options) {
    Session session = openSession(options);
    writeResult(options.output,
                session.renewState(readFile(options.ticket), nameForMessages(options.ticket)));
    return ExitStatus::success;
}

std::string yesOrNo(bool flag) { return flag ? "yes" : "no"; }

ExitStatus show(const Options& options) {
    const StateBlob state = inspectState(readFile(options.ticket), nameForMessages(options.ticket));
    std::vector<Row> rows = {
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
    writeStandardOutput(layOut(rows));
    return ExitStatus::success;
}

constexpr Option blobArgument = {.names = "BLOB",
                                 .operand = Operand::file,
                                 .target = in<&Options::ticket>,
                                 .help = "File of a state blob, or - for standard input",
                                 .isRequired = true};

constexpr std::array packOptions = {ticketArgument, outputOption,        modelOption,
                                    languageOption, preferenceSetOption, printerPreferencesOption};
constexpr std::array unpackOptions = {blobArgument, outputOption};
constexpr std::array showOptions = {blobArgument};
constexpr std::array renewOptions = {blobArgument,   outputOption,        modelOption,
                                     languageOption, preferenceSetOption, printerPreferencesOption};

} // namespace

const Command stateCommand = {
    "state",
    "Tickets as binary state blobs, which applications keep with a document or queue",
    {},
    nullptr};
const Command statePackCommand = {"state pack", "Make a blob of a ticket", packOptions, pack,
                                  "jobticket state pack report.xml -o report.blob\n"};
const Command stateUnpackCommand = {
    "state unpack", "Make a ticket of a blob", unpackOptions, unpack,
    "jobticket state unpack queue.blob | jobticket set - copies=2\n"};
const Command stateShowCommand = {"state show",
                                  "List what a blob says besides the ticket: version, user",
                                  showOptions, show, "jobticket state show queue.blob\n"};
const Command stateRenewCommand = {"state renew",
                                   "Put the present user and preferences into a blob", renewOptions,
                                   renew, "jobticket state renew queue.blob -o queue.blob\n"};

} // namespace jobticket
