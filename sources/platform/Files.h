#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace zent::platform {

/// The unit that ends a folder's name in a path: a backslash on Windows, a slash elsewhere.
extern const char16_t pathSeparator;

/// Whether a path names no folder: the system would look for it in one of its own choice, where
/// anybody could have put something of that name.
bool isBareName(std::u16string_view path);

/// An open file; closes with the object. On Windows the names of devices, such as "COM1" and
/// "NUL.txt", aren't those of files: neither this nor the functions below open or find one.
class OpenFile {
public:
    /// Opens an existing file for reading; others may read or replace it meanwhile. Null on
    /// failure.
    static std::unique_ptr<OpenFile> openForReading(std::u16string_view path);
    /// Creates or truncates a file for writing, shared for reading; null on failure.
    static std::unique_ptr<OpenFile> createForWriting(std::u16string_view path);

    virtual ~OpenFile() = default;
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    /// The size in bytes; false on failure.
    virtual bool getSize(std::uint64_t& size) = 0;
    /// Reads or writes as many bytes, or fewer; `done` says how many. False on failure.
    virtual bool read(std::span<std::byte> buffer, std::size_t& done) = 0;
    virtual bool write(std::span<const std::byte> bytes, std::size_t& done) = 0;
    /// The handle's number, for messages.
    virtual std::uintptr_t getHandle() const = 0;

protected:
    OpenFile() = default;
};

/// Removes a file; false on failure.
bool deleteFile(std::u16string_view path);

/// Identifies the state of a file without reading it. All is zero if there is no file.
struct FileStamp {
    bool exists = false;
    std::uint64_t size = 0;
    std::uint64_t modified = 0; // in the system's finest unit
    std::uint64_t identity = 0; // file number where the system has one
    bool operator==(const FileStamp&) const = default;
};
FileStamp getFileStamp(std::u16string_view path);

/// The full path of the file that this code was loaded from: the library, or the program that the
/// library's objects are linked into. Empty if the system can't tell, on Windows also if it is over
/// 260 units.
std::u16string getModulePath();

/// The folder of printer drivers, with a trailing separator: where driver files lie as long as no
/// session has made the library's own folder known. Windows: by the spooler, for a printer (its
/// driver's folder) or, with an empty name or failing that, the environment's ("...\3"). Elsewhere:
/// the library's own folder.
std::u16string getDriverDirectory(std::u16string_view printerName = {});

} // namespace zent::platform
