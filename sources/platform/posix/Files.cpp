#include "platform/Files.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <link.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/CodePage.h"
#include "platform/KeepForever.h"

namespace zent::platform {

const char16_t pathSeparator = u'/';

namespace {

class PosixFile final : public OpenFile {
public:
    explicit PosixFile(int descriptor) : m_descriptor(descriptor) {}
    ~PosixFile() override { close(m_descriptor); }

    bool getSize(std::uint64_t& size) override {
        struct stat status = {};
        if (fstat(m_descriptor, &status) != 0 || status.st_size < 0) {
            return false;
        }
        size = static_cast<std::uint64_t>(status.st_size);
        return true;
    }

    bool read(std::span<std::byte> buffer, std::size_t& done) override {
        return transfer(buffer, done, [this](std::span<std::byte> rest) {
            return ::read(m_descriptor, rest.data(), rest.size());
        });
    }

    bool write(std::span<const std::byte> bytes, std::size_t& done) override {
        return transfer(bytes, done, [this](std::span<const std::byte> rest) {
            return ::write(m_descriptor, rest.data(), rest.size());
        });
    }

    std::uintptr_t getHandle() const override { return static_cast<std::uintptr_t>(m_descriptor); }

private:
    /// Repeats a call until all bytes are moved: the system may move fewer than it was asked to, or
    /// be interrupted, without a failure.
    template <typename Byte, typename Step>
    static bool transfer(std::span<Byte> bytes, std::size_t& done, const Step& step) {
        done = 0;
        while (done < bytes.size()) {
            const ssize_t moved = step(bytes.subspan(done));
            if (moved < 0 && errno != EINTR) {
                return false;
            }
            if (moved == 0) {
                break;
            }
            if (moved > 0) {
                done += static_cast<std::size_t>(moved);
            }
        }
        return true;
    }

    int m_descriptor;
};

/// The file that holds this code, as the loader knows it. It is asked for when the library is
/// loaded, since the loader's name may be relative to the folder that the process is in at that
/// time.
const std::string& loadedFrom() {
    static const std::string& path = keepForever<std::string>([] {
        Dl_info information = {};
        link_map* map = nullptr;
        if (dladdr1(&pathSeparator, &information, reinterpret_cast<void**>(&map),
                    RTLD_DL_LINKMAP) == 0 ||
            map == nullptr) {
            return std::string();
        }
        // The loader has no name for the program itself.
        const char* name = *map->l_name != '\0' ? map->l_name : "/proc/self/exe";
        char resolved[PATH_MAX] = {};
        return std::string(realpath(name, resolved) != nullptr ? resolved : "");
    }());
    return path;
}
[[maybe_unused]] const std::string& loadedFromAtStart = loadedFrom();

} // namespace

bool isBareName(std::u16string_view path) {
    return path.find(pathSeparator) == std::u16string_view::npos;
}

std::unique_ptr<OpenFile> OpenFile::openForReading(std::u16string_view path) {
    // A pipe would make the call wait for a writer, and a folder opens though it can't be read:
    // only what holds bytes is a file here.
    const int descriptor = open(toAnsi(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) {
        return nullptr;
    }
    auto file = std::make_unique<PosixFile>(descriptor);
    struct stat status = {};
    if (fstat(descriptor, &status) != 0) {
        return nullptr;
    }
    if (!S_ISREG(status.st_mode)) {
        file.reset();
        errno = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
        return nullptr;
    }
    return file;
}

std::unique_ptr<OpenFile> OpenFile::createForWriting(std::u16string_view path) {
    const int descriptor =
        open(toAnsi(path).c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    return descriptor < 0 ? nullptr : std::make_unique<PosixFile>(descriptor);
}

bool deleteFile(std::u16string_view path) { return unlink(toAnsi(path).c_str()) == 0; }

FileStamp getFileStamp(std::u16string_view path) {
    struct stat status = {};
    if (stat(toAnsi(path).c_str(), &status) != 0) {
        return {};
    }
    constexpr std::uint64_t nanosecondsPerSecond = 1'000'000'000;
    return {.exists = true,
            .size = static_cast<std::uint64_t>(status.st_size),
            .modified = static_cast<std::uint64_t>(status.st_mtim.tv_sec) * nanosecondsPerSecond +
                        static_cast<std::uint64_t>(status.st_mtim.tv_nsec),
            .identity = static_cast<std::uint64_t>(status.st_ino)};
}

std::u16string getModulePath() { return fromAnsi(loadedFrom()); }

std::u16string getDriverDirectory(std::u16string_view /*printerName*/) {
    const std::u16string path = getModulePath();
    return path.substr(0, path.rfind(pathSeparator) + 1);
}

} // namespace zent::platform
