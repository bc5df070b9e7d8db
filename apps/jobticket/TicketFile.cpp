#include "TicketFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <span>
#include <system_error>

#include "Errors.h"
#include "Platform.h"
#include "Text.h"
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

/// Windows opens devices by such names as "aux.xml" too, and may wait for them.
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
    case zent::platform::FileKind::device: // is written to, not replaced
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

} // namespace jobticket
