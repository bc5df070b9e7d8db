#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string_view>

namespace zent::platform {

enum class FileKind {
    missing,
    regular,
    folder,
    device,  // a device or a pipe, which is written to, but not replaced
    unknown, // the system can't tell; getLastError() says why
};
/// What a path names, links followed. On Windows the names of devices give `unknown`: such files
/// are neither looked at, nor locked below.
FileKind getFileKind(std::u16string_view path);

/// A file that is read and replaced by one at a time, of this process or another. The lock is a
/// file beside it (".NAME.zent-lock"), which is removed when nobody holds the lock; the lock of a
/// process that ended without letting go is free. Those who only read need no lock, since a file is
/// replaced in one step.
class LockedFile {
public:
    /// Waits for the lock of a file, which need not exist. A link stands for the file that it leads
    /// to. Null on failure, also when another one holds it for longer than half a minute;
    /// getLastError() says why.
    static std::unique_ptr<LockedFile> lock(std::u16string_view path);

    virtual ~LockedFile() = default;
    LockedFile(const LockedFile&) = delete;
    LockedFile& operator=(const LockedFile&) = delete;

    /// Puts a new file in the place of the old one when all of it has reached the disk. It is as
    /// readable as the old one was, and no more than that on the way. False on failure, which
    /// leaves the old one as it was; getLastError() says why. On the way the new file is one beside
    /// the old (".NAME.zent-new"); what a process that was killed has left there goes.
    virtual bool replace(std::span<const std::byte> bytes) = 0;

protected:
    LockedFile() = default;
};

} // namespace zent::platform
