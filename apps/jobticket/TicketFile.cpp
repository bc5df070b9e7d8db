#include "TicketFile.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <system_error>

#include "ExitStatus.h"
#include "Platform.h"

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

/// A name that nobody can foresee, in the folder of the file.
fs::path temporaryBeside(const fs::path& file) {
    std::random_device random;
    return file.parent_path() /
           (".jobticket-" + std::to_string(random()) + std::to_string(random()) + ".tmp");
}

/// True if the whole of it has reached the system.
bool writeBytes(const fs::path& path, std::string_view bytes) {
    errno = 0;
    std::ofstream stream(path, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    return stream.good();
}

void replaceFile(const fs::path& target, const std::string& name, std::string_view bytes) {
    const fs::path temporary = temporaryBeside(target);
    std::error_code ignored;
    if (!writeBytes(temporary, bytes)) {
        const std::string reason = lastReason();
        fs::remove(temporary, ignored);
        fail(ExitStatus::unwritable, "write", name, reason);
    }
    if (const fs::file_status status = fs::status(target, ignored); fs::exists(status)) {
        fs::permissions(temporary, status.permissions(), ignored);
    }
    std::error_code error;
    fs::rename(temporary, target, error);
    if (error) {
        fs::remove(temporary, ignored);
        fail(ExitStatus::unwritable, "write", name, error.message());
    }
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

void writeListing(std::string_view text, bool isOutputTaken) {
    if (isOutputTaken) {
        std::cerr << text;
    } else {
        writeStandardOutput(text);
    }
}

std::string nameForMessages(const std::string& name) {
    return name == standardStream ? "the standard stream" : name;
}

std::string readFile(const std::string& name) {
    if (name == standardStream) {
        return readStream(std::cin, name);
    }
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
    fs::path path = platform::toPath(name);
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (fs::exists(status)) {
        if (!fs::is_regular_file(status)) { // a device or a pipe is written to, not replaced
            if (!writeBytes(path, bytes)) {
                fail(ExitStatus::unwritable, "write", name,
                     fs::is_directory(status) ? "it is a folder" : lastReason());
            }
            return;
        }
        path = fs::canonical(path); // a link stays, and what it points to is replaced
    }
    replaceFile(path, name, bytes);
}

} // namespace jobticket
