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
constexpr mode_t everybody = ownerAlone | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH; // less the umask

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
    /// What went wrong before is still the last error.
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

/// Removes a file; what went wrong before is still the last error.
void removeQuietly(const std::string& path) {
    const int error = errno;
    unlink(path.c_str());
    errno = error;
}

/// "folder/" of a path; "./" of a bare name, and "/" of what stands in the root.
std::string folderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

/// The file that a path leads to, which need not exist. Empty on failure.
std::string followLinks(std::string path) {
    constexpr int mostLinks = 40; // as the system itself follows them
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

/// What the names of all files begin with that stand beside a file for its sake. Names that are so
/// long that nothing could be added to them share it with others.
std::string makeStem(const std::string& path) {
    constexpr std::size_t longest = 180; // of the 255 bytes that a name may have
    const std::string folder = folderOf(path);
    const std::string name = path.substr(path.rfind('/') + 1); // of a bare name, all
    return folder + '.' + name.substr(0, longest) + ".zent-";
}

/// The file of a lock, made if it isn't there. A user may use that of another, but not write to it.
Descriptor openLock(const std::string& path) {
    constexpr int flags = O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    const int descriptor = open(path.c_str(), O_RDWR | flags, everybody);
    return Descriptor(descriptor >= 0 || errno != EACCES
                          ? descriptor
                          : open(path.c_str(), O_RDONLY | flags, everybody));
}

/// Whether a name still is that of an open file; nothing if the system can't tell.
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

/// The lock, once it is held; closed on failure. Whoever lets go removes the file, so that what one
/// who has waited gets may have no name any more; then he begins anew.
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

/// Gives a new file the owner and the modes of the old one. Where the group can't be kept, which
/// takes privileges, it gets no more than others had: it isn't the group that was meant.
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

/// What is in a folder is on the disk only when the folder itself is. Some file systems can't do
/// it.
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
        // A file of that name that isn't empty is somebody's own.
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
    /// Nobody else writes while the lock is held: what has the name already was left by a writer
    /// that was killed, or put there by somebody who wants it to be written to.
    static Descriptor createTemporary(const std::string& path, mode_t modes) {
        unlink(path.c_str());
        return Descriptor(
            open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, modes));
    }

    std::string m_path;
    std::string m_stem;
    Descriptor m_lock; // goes last: the file of the lock is gone before the lock is free
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
