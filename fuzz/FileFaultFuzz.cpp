// Files that fail on the way: one call of the system, or all from that one on, ends with an error
// while the media library is read, changed and written, a session opens, or a ticket comes in. The
// library says so or does without, loses nothing, and goes on when the fault is over.
//
// Input: a byte each for the scene, the function that fails, how many calls of it succeed before,
// whether the fault stays, and the error; then a document.

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "SameList.h"
#include "ocore/Faults/TarvoException.h"
#include "ocore/OrdoParse/CompiledDtd.h"
#include "ocore/Printer/NonDriverBasedPrinter.h"
#include "ocore/Stock/StockInformation.h"
#include "zent27.h"

namespace {

namespace fs = std::filesystem;
using namespace zent;
using zent::fuzz::require;

enum class Function : std::uint8_t { open, read, write, fsync, rename, stat, fstat, flock, count };

/// Which calls of the system are to fail.
struct Fault {
    bool isArmed = false;
    Function function = Function::open;
    std::uint32_t callsBefore = 0;
    bool stays = false;
    int error = 0;
};
Fault fault;

/// Whether this call is to fail; errno is set then.
bool fails(Function function) {
    if (!fault.isArmed || function != fault.function) {
        return false;
    }
    if (fault.callsBefore > 0) {
        --fault.callsBefore;
        return false;
    }
    fault.isArmed = fault.stays;
    errno = fault.error;
    return true;
}

} // namespace

// The linker puts these in the place of the system's (--wrap).
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
int __real_open(const char* path, int flags, ...);
ssize_t __real_read(int file, void* buffer, std::size_t size);
ssize_t __real_write(int file, const void* bytes, std::size_t size);
int __real_fsync(int file);
int __real_rename(const char* from, const char* to);
int __real_stat(const char* path, struct stat* status);
int __real_fstat(int file, struct stat* status);
int __real_flock(int file, int operation);

int __wrap_open(const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const auto modes = va_arg(arguments, mode_t); // any bits if the caller gave none
    va_end(arguments);
    return fails(Function::open) ? -1 : __real_open(path, flags, modes);
}
/// A call may move less than it was asked to.
ssize_t __wrap_read(int file, void* buffer, std::size_t size) {
    return fails(Function::read) ? (fault.error == ENOSPC ? 0 : -1)
                                 : __real_read(file, buffer, size);
}
ssize_t __wrap_write(int file, const void* bytes, std::size_t size) {
    const std::size_t part = fault.isArmed ? std::max<std::size_t>(size / 2, 1) : size;
    return fails(Function::write) ? -1 : __real_write(file, bytes, part);
}
int __wrap_fsync(int file) { return fails(Function::fsync) ? -1 : __real_fsync(file); }
int __wrap_rename(const char* from, const char* to) {
    return fails(Function::rename) ? -1 : __real_rename(from, to);
}
int __wrap_stat(const char* path, struct stat* status) {
    return fails(Function::stat) ? -1 : __real_stat(path, status);
}
int __wrap_fstat(int file, struct stat* status) {
    return fails(Function::fstat) ? -1 : __real_fstat(file, status);
}
int __wrap_flock(int file, int operation) {
    return fails(Function::flock) ? -1 : __real_flock(file, operation);
}
}
// NOLINTEND(bugprone-reserved-identifier)

namespace {

/// Whether the work succeeds under the fault; a failure must be one of the library's own.
template <typename Work>
bool succeedsUnderFault(const Fault& planned, const Work& work) {
    fault = planned;
    bool done = true;
    try {
        work();
    } catch (const TarvoException& exception) {
        require(exception.getResultCode() > ZENT_OK &&
                exception.getResultCode() < ZENT_ERR_STD_EXCEPTION);
        done = false;
    }
    fault = {};
    return done;
}

ZentSessionType openSession(ZentResult& result) {
    ZentSessionType opened = nullptr;
    result =
        fnOpenSession(ZENT_INTERFACE_VERSION, 6, 2, ZENT_INSTRUCTIONS_XML, 1, nullptr, 0, &opened);
    require((result == ZENT_OK) == (opened != nullptr));
    return opened;
}

ZentSessionType getSession() {
    static const ZentSessionType session = [] {
        ZentResult result = ZENT_OK;
        return openSession(result);
    }();
    require(session != nullptr);
    return session;
}

/// A media library in a folder of its own.
class Library {
public:
    Library() { fs::create_directories(m_folder); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
    ~Library() {
        std::error_code ignored;
        fs::remove_all(m_folder, ignored);
    }

    void write(std::string_view document) const {
        std::ofstream(getFile(), std::ios::binary) << document;
    }
    std::string read() const {
        std::ifstream file(getFile(), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void change() {
        StockInformation stocks(m_printer, MediaPreferences(CXString(m_folder.string().c_str())));
        Stock stock(0, FeatureValue(), StockType::user, StockSource::name, FeatureSettings());
        stock.setKeyFromText(u"added");
        stocks.addStock(stock);
        stocks.save();
    }

private:
    fs::path getFile() const { return m_folder / "omedpref.omp"; }

    fs::path m_folder{fs::temp_directory_path() /
                      ("zent-file-fault-fuzz-" + std::to_string(std::random_device()()))};
    NonDriverBasedPrinter m_printer{6, 2, 1, u"", true};
};

void changeLibrary(const Fault& planned, std::string_view document) {
    static Library library;
    library.write(document);
    if (!succeedsUnderFault(planned, [] { library.change(); })) {
        require(library.read() == document);
        return;
    }
    require(library.read() != document);
}

void openUnderFault(const Fault& planned) {
    ZentResult result = ZENT_OK;
    ZentSessionType opened = nullptr;
    require(succeedsUnderFault(planned, [&] { opened = openSession(result); }));
    require(result < ZENT_ERR_STD_EXCEPTION);
    if (opened != nullptr) {
        require(fnCloseSession(&opened) == ZENT_OK);
    }
}

ZentResult importTicket(std::string_view document) {
    ZentBool problems = 0;
    ZentBool applied = 0;
    return fnImportJobTicket(getSession(), document.data(),
                             static_cast<std::uint32_t>(document.size()), ZENT_FORMAT_XML,
                             ZENT_APPLY_SILENT_KEEP, nullptr, nullptr, &problems, &applied);
}

/// Imports a ticket, for which the document type is read anew.
void importUnderFault(const Fault& planned, std::string_view document) {
    const ZentResult expected = importTicket(document);
    CompiledDtd::forget();
    ZentResult result = ZENT_OK;
    require(succeedsUnderFault(planned, [&] { result = importTicket(document); }));
    require(result < ZENT_ERR_STD_EXCEPTION);
    require(importTicket(document) == expected);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t choices = 5;
    if (size < choices) {
        return 0;
    }
    getSession(); // a session sets the folder of the library's files
    static constexpr std::array errors{EIO, EACCES, ENOENT, ENOSPC, EMFILE, ESTALE, EINTR, ELOOP};
    Fault planned;
    planned.isArmed = true;
    planned.function = static_cast<Function>(data[1] % static_cast<std::uint8_t>(Function::count));
    planned.callsBefore = data[2] % 32;
    planned.error = errors.at(data[4] % errors.size());
    // Such a call would be repeated for ever.
    planned.stays = data[3] % 2 == 1 && planned.error != EINTR;
    const std::string_view document(reinterpret_cast<const char*>(data + choices), size - choices);
    switch (data[0] % 3) {
    case 0:
        changeLibrary(planned, document);
        break;
    case 1:
        openUnderFault(planned);
        break;
    default:
        importUnderFault(planned, document);
        break;
    }
    return 0;
}
