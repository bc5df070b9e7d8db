#include "platform/LockedFile.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/CodePage.h"
#include "platform/posix/Pause.h"

namespace zent::platform {

namespace {

constexpr mode_t allModes = S_IRWXU | S_IRWXG | S_IRWXO;
constexpr mode_t ownerAlone = S_IRUSR | S_IWUSR;
// The umask is taken off this.
constexpr mode_t everybody = ownerAlone | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;

class Descriptor {
public:
    explicit Descriptor(int number) : m_number(number) {}
    ~Descriptor() { reset(); }
    Descriptor(Descriptor&& other) noexcept : m_number(other.release()) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool isOpen() const { return m_number >= 0; }
    int get() const { return m_number; }
    int release() { return std::exchange(m_number, -1); }
    /// Closes the file. The last error stays as it was.
    void reset() {
        const int error = errno;
        if (isOpen()) {
            close(release());
        }
        errno = error;
    }

private:
    int m_number;
};

/// Removes a file. The last error stays as it was.
void removeQuietly(const std::string& path) {
    const int error = errno;
    unlink(path.c_str());
    errno = error;
}

/// The folder of a path with its slash: "./" for a bare name, and "/" for what lies in the root.
std::string folderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

/// The file that a path leads to, which need not exist. Empty on failure.
std::string followLinks(std::string path) {
    constexpr int mostLinks = 40; // as many as the system itself follows
    for (int count = 0; count < mostLinks; ++count) {
        std::array<char, PATH_MAX> text = {};
        const ssize_t length = readlink(path.c_str(), text.data(), text.size());
        if (length < 0) {
            const bool isNoLink = errno == EINVAL || errno == ENOENT;
            return isNoLink ? path : std::string();
        }
        const std::string target(text.data(), static_cast<std::size_t>(length));
        path = target.starts_with('/') ? target : folderOf(path).append(target);
    }
    errno = ELOOP;
    return {};
}

/// The beginning of the names of the files that are made beside a file: its lock and its new
/// content. Long names are cut, since nothing could be added to them otherwise, and may share a
/// beginning with others.
std::string makeStem(const std::string& path) {
    constexpr std::size_t longest = 180; // of the 255 bytes that a name may have
    const std::string folder = folderOf(path);
    const std::string name = path.substr(path.rfind('/') + 1); // all of a bare name
    return folder + '.' + name.substr(0, longest) + ".zent-";
}

/// Opens the file of a lock, and makes it if it isn't there. A user may lock the file of another,
/// but not write to it.
Descriptor openLock(const std::string& path) {
    constexpr int flags = O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    const int descriptor = open(path.c_str(), O_RDWR | flags, everybody);
    return Descriptor(descriptor >= 0 || errno != EACCES
                          ? descriptor
                          : open(path.c_str(), O_RDONLY | flags, everybody));
}

/// Whether a name still leads to an open file; nothing if the system can't tell.
std::optional<bool> isNameOf(const std::string& path, const Descriptor& file) {
    struct stat open = {};
    struct stat named = {};
    if (fstat(file.get(), &open) != 0) {
        return std::nullopt;
    }
    if (lstat(path.c_str(), &named) != 0) {
        return errno == ENOENT ? std::optional(false) : std::nullopt;
    }
    return open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

/// Gives the locked file; a closed one on failure. Whoever lets go of a lock removes its file, so
/// that the file that a waiting process has locked may have no name any more; then it begins anew.
Descriptor acquire(const std::string& path) {
    constexpr int longestWait = 30'000; // milliseconds, or a little more
    for (int waited = 0; waited < longestWait; ++waited) {
        Descriptor file = openLock(path);
        if (!file.isOpen()) {
            return file;
        }
        if (flock(file.get(), LOCK_EX | LOCK_NB) == 0) {
            const std::optional<bool> isNamed = isNameOf(path, file);
            if (!isNamed) {
                file.reset();
            }
            if (!isNamed || *isNamed) {
                return file;
            }
        } else if (errno == EWOULDBLOCK) {
            pauseFor(1);
        } else if (errno != EINTR) {
            file.reset();
            return file;
        }
    }
    errno = ETIMEDOUT;
    return Descriptor(-1);
}

bool writeAll(int descriptor, std::span<const std::byte> bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            return false;
        }
        if (written > 0) {
            bytes = bytes.subspan(static_cast<std::size_t>(written));
        }
    }
    return true;
}

/// Gives a new file the owner and the modes of the old one. To keep the group takes privileges;
/// where it can't be kept, the new group gets no more rights than others had.
bool takeOver(int descriptor, const struct stat& old) {
    mode_t modes = old.st_mode & allModes;
    struct stat status = {};
    if (fstat(descriptor, &status) != 0) {
        return false;
    }
    if (status.st_gid != old.st_gid && fchown(descriptor, uid_t(-1), old.st_gid) != 0) {
        modes &= ~mode_t{S_IRWXG} | ((modes & S_IRWXO) << 3U);
    }
    if (status.st_uid != old.st_uid) {
        [[maybe_unused]] const int ignored = fchown(descriptor, old.st_uid, gid_t(-1));
    }
    return fchmod(descriptor, modes) == 0;
}

/// Brings a folder to the disk, without which its files aren't there after a crash. Some file
/// systems can't do it.
void syncFolder(const std::string& folder) {
    const Descriptor descriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.isOpen()) {
        fsync(descriptor.get());
    }
}

class PosixLockedFile final : public LockedFile {
public:
    PosixLockedFile(std::string path, Descriptor lock)
        : m_path(std::move(path)), m_stem(makeStem(m_path)), m_lock(std::move(lock)) {}

    ~PosixLockedFile() override {
        // A file of that name that isn't empty belongs to somebody else.
        struct stat status = {};
        if (fstat(m_lock.get(), &status) == 0 && status.st_size == 0) {
            removeQuietly(lockOf(m_stem));
        }
    }

    static std::string lockOf(const std::string& stem) { return stem + "lock"; }

    bool replace(std::span<const std::byte> bytes) override {
        struct stat old = {};
        const bool isThere = stat(m_path.c_str(), &old) == 0;
        if (!isThere && errno != ENOENT) {
            return false;
        }
        if (isThere && !S_ISREG(old.st_mode)) {
            errno = S_ISDIR(old.st_mode) ? EISDIR : EINVAL;
            return false;
        }
        const std::string temporary = m_stem + "new";
        Descriptor file = createTemporary(temporary, isThere ? ownerAlone : everybody);
        if (!file.isOpen()) {
            return false;
        }
        const bool isComplete = writeAll(file.get(), bytes) &&
                                (!isThere || takeOver(file.get(), old)) && fsync(file.get()) == 0 &&
                                close(file.release()) == 0 &&
                                rename(temporary.c_str(), m_path.c_str()) == 0;
        if (!isComplete) {
            removeQuietly(temporary);
            return false;
        }
        syncFolder(folderOf(m_path));
        return true;
    }

private:
    /// Nobody else writes while the lock is held: a file that has the name already was left by a
    /// writer that was killed, or put there by somebody who wants it to be written to, and is
    /// removed.
    static Descriptor createTemporary(const std::string& path, mode_t modes) {
        unlink(path.c_str());
        return Descriptor(
            open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, modes));
    }

    std::string m_path;
    std::string m_stem;
    Descriptor m_lock; // destroyed last, so that the lock's file is removed before the lock is free
};

} // namespace

FileKind getFileKind(std::u16string_view path) {
    struct stat status = {};
    if (stat(toAnsi(path).c_str(), &status) != 0) {
        return errno == ENOENT ? FileKind::missing : FileKind::unknown;
    }
    if (S_ISREG(status.st_mode)) {
        return FileKind::regular;
    }
    return S_ISDIR(status.st_mode) ? FileKind::folder : FileKind::device;
}

std::unique_ptr<LockedFile> LockedFile::lock(std::u16string_view path) {
    const std::string target = followLinks(toAnsi(path));
    if (target.empty()) {
        return nullptr;
    }
    Descriptor lock = acquire(PosixLockedFile::lockOf(makeStem(target)));
    return lock.isOpen() ? std::make_unique<PosixLockedFile>(target, std::move(lock)) : nullptr;
}

} // namespace zent::platform
