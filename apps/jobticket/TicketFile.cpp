#include "TicketFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <span>
#include <system_error>
#include <vector>

#include "Errors.h"
#include "Platform.h"
#include "Session.h"
#include "Text.h"
#include "ocore/AnlXlate/AnlTranslatorForXml.h"
#include "ocore/Faults/TarvoException.h"
#include "ocore/Resources/ByteBuffer.h"
#include "platform/LockedFile.h"
#include "platform/System.h"

namespace jobticket {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t largestFile = 64U << 20U; // what the library takes

[[noreturn]] void fail(ExitStatus status, const char* action, const std::string& name,
                       const std::string& reason) {
    throw ProgramError(status, std::string("can't ") + action + " " + nameForMessages(name) + ": " +
                                   reason);
}

/// Why the last operation of the C library failed.
std::string lastReason() { return std::generic_category().message(errno); }

/// Refuses the name of a device. Windows takes even "aux.xml" for one, and may wait for it.
void refuseDeviceName(ExitStatus status, const char* action, const std::string& name) {
    if (platform::isDeviceName(name)) {
        fail(status, action, name, "it is the name of a device");
    }
}

std::string readStream(std::istream& stream, const std::string& name) {
    std::string bytes;
    std::string chunk(1U << 16U, '\0');
    do {
        stream.read(chunk.data(), static_cast<std::streamsize>(chunk.size()));
        bytes.append(chunk, 0, static_cast<std::size_t>(stream.gcount()));
        if (bytes.size() > largestFile) {
            fail(ExitStatus::unreadable, "read", name, "it is larger than 64 MiB");
        }
    } while (stream);
    if (stream.bad()) {
        fail(ExitStatus::unreadable, "read", name, lastReason());
    }
    return bytes;
}

/// Why the last call of the system failed.
std::string lastSystemReason() {
    return toUtf8(zent::platform::getSystemErrorText(zent::platform::getLastError()));
}

/// True if the whole of it has reached the system.
bool writeIntoDevice(const fs::path& path, std::string_view bytes) {
    errno = 0;
    std::ofstream stream(path, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    return stream.good();
}

} // namespace

void writeStandardOutput(std::string_view bytes) {
    errno = 0;
    const bool isWritten = std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size();
    if (!isWritten || std::fflush(stdout) != 0) {
        fail(ExitStatus::unwritable, "write", std::string(standardStream), lastReason());
    }
}

bool isStandardStream(const std::optional<std::string>& name) {
    return !name || *name == standardStream;
}

void writeResult(const std::optional<std::string>& name, std::string_view bytes) {
    writeFile(name.value_or(std::string(standardStream)), bytes);
}

std::vector<std::string> chooseResultFiles(const std::vector<std::string>& tickets,
                                           const std::optional<std::string>& output,
                                           std::string_view ending) {
    if (tickets.size() == 1) {
        return {output.value_or(std::string(standardStream))};
    }
    if (!output ||
        zent::platform::getFileKind(fromUtf8(*output)) != zent::platform::FileKind::folder) {
        throw ProgramError(ExitStatus::usage,
                           "with several tickets --output names the folder that the results go to, "
                           "which must be there");
    }
    std::vector<std::string> files;
    for (const std::string& ticket : tickets) {
        fs::path name = platform::toPath(ticket).filename();
        if (!ending.empty()) {
            name.replace_extension(ending);
        }
        const std::u8string path = (platform::toPath(*output) / name).u8string();
        std::string file(path.begin(), path.end());
        if (ticket == standardStream || std::ranges::find(files, file) != files.end()) {
            throw ProgramError(ExitStatus::usage,
                               "the result of " + inQuotes(ticket) + " has no file of its own");
        }
        files.push_back(std::move(file));
    }
    return files;
}

void writeListing(std::string_view text, bool isOutputTaken) {
    if (isOutputTaken) {
        std::cerr << text;
    } else {
        writeStandardOutput(text);
    }
}

std::string nameForMessages(const std::string& name) {
    return name == standardStream ? "the standard stream" : toPrintable(name);
}

std::string readFile(const std::string& name) {
    if (name == standardStream) {
        return readStream(std::cin, name);
    }
    refuseDeviceName(ExitStatus::unreadable, "read", name);
    const fs::path path = platform::toPath(name);
    std::error_code ignored;
    if (fs::is_directory(path, ignored)) {
        fail(ExitStatus::unreadable, "read", name, "it is a folder");
    }
    errno = 0;
    std::ifstream stream(path, std::ios::binary);
    if (!stream) {
        fail(ExitStatus::unreadable, "read", name, lastReason());
    }
    return readStream(stream, name);
}

void writeFile(const std::string& name, std::string_view bytes) {
    if (name == standardStream) {
        writeStandardOutput(bytes);
        return;
    }
    refuseDeviceName(ExitStatus::unwritable, "write", name);
    const std::u16string path = fromUtf8(name);
    switch (zent::platform::getFileKind(path)) {
    case zent::platform::FileKind::folder:
        fail(ExitStatus::unwritable, "write", name, "it is a folder");
    case zent::platform::FileKind::device: // a device is written to, not replaced
        if (!writeIntoDevice(platform::toPath(name), bytes)) {
            fail(ExitStatus::unwritable, "write", name, lastReason());
        }
        return;
    default:
        break;
    }
    const auto file = zent::platform::LockedFile::lock(path);
    if (file == nullptr || !file->replace(std::as_bytes(std::span(bytes)))) {
        fail(ExitStatus::unwritable, "write", name, lastSystemReason());
    }
}

namespace {

constexpr std::size_t mostMessages = 5;

/// The parser's own lines of an exception's message, which also holds the whole document.
std::vector<std::string> parserMessages(const zent::CXString& message) {
    std::vector<std::string> lines;
    std::u16string_view rest = message;
    while (!rest.empty()) {
        const std::size_t end = rest.find(u"\r\n");
        const std::u16string_view line = rest.substr(0, end);
        if (line.starts_with(u"XML is:")) {
            break;
        }
        // The first message follows the name of what raised it.
        if (const std::size_t start =
                std::min(line.find(u"Error at line"), line.find(u"Fatal error at line"));
            start != std::u16string_view::npos) {
            lines.push_back(toLine(line.substr(start)));
        }
        rest.remove_prefix(end == std::u16string_view::npos ? rest.size() : end + 2);
    }
    return lines;
}

} // namespace

void failToRead(const zent::TarvoException& exception, const std::string& subject,
                const std::string& fault) {
    const std::vector<std::string> messages = parserMessages(exception.getMessage());
    if (messages.empty()) {
        throw LibraryError(exception.getResultCode(), "reading", subject);
    }
    std::string text = subject + " " + fault;
    for (std::size_t index = 0; index < messages.size() && index < mostMessages; ++index) {
        text += "\n  " + messages[index];
    }
    if (messages.size() > mostMessages) {
        text += "\n  and " + std::to_string(messages.size() - mostMessages) + " more";
    }
    throw ProgramError(ExitStatus::invalidTicket, text);
}

zent::AttrNodeList readDocument(std::string_view document, const std::string& name) {
    zent::AttrNodeList list;
    try {
        zent::OrdoTranslator().anlFromBuffer(zent::ByteBuffer(document.data(), document.size()),
                                             &list);
    } catch (const zent::TarvoException& exception) {
        failToRead(exception, nameForMessages(name), "is no valid ticket");
    }
    return list;
}

zent::AttrNodeList readDocumentFile(const std::string& name) {
    return readDocument(readFile(name), name);
}

std::string repairTicket(std::string_view document, const std::string& name,
                         const PrinterChoice& printer) {
    Session session(printer);
    session.importAndRepairTicket(document, nameForMessages(name));
    return session.exportTicket();
}

bool importDocumentFile(Session& session, const std::string& name) {
    const std::string document = readFile(name);
    try {
        return session.importTicket(document, nameForMessages(name));
    } catch (const LibraryError&) {
        // This fails as well, with a message that says where in the document.
        readDocument(document, name);
        throw;
    }
}

} // namespace jobticket
