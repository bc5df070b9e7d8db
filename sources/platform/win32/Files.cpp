#include "platform/Files.h"

#include <algorithm>
#include <vector>

#include "platform/win32/DeviceName.h"
#include "platform/win32/Module.h"
#include "platform/win32/WideText.h"

#include <winspool.h>

namespace zent::platform {

const char16_t pathSeparator = u'\\';

namespace {

class WindowsFile final : public OpenFile {
public:
    explicit WindowsFile(HANDLE handle) : m_handle(handle) {}
    ~WindowsFile() override { CloseHandle(m_handle); }

    bool getSize(std::uint64_t& size) override {
        LARGE_INTEGER found = {};
        if (GetFileSizeEx(m_handle, &found) == FALSE || found.QuadPart < 0) {
            return false;
        }
        size = static_cast<std::uint64_t>(found.QuadPart);
        return true;
    }

    bool read(void* buffer, std::size_t length, std::size_t& done) override {
        auto* bytes = static_cast<std::byte*>(buffer);
        return transfer(length, done, [&](std::size_t offset, DWORD count, DWORD* moved) {
            return ReadFile(m_handle, bytes + offset, count, moved, nullptr);
        });
    }

    bool write(const void* data, std::size_t length, std::size_t& done) override {
        const auto* bytes = static_cast<const std::byte*>(data);
        return transfer(length, done, [&](std::size_t offset, DWORD count, DWORD* moved) {
            return WriteFile(m_handle, bytes + offset, count, moved, nullptr);
        });
    }

    std::uintptr_t getHandle() const override { return reinterpret_cast<std::uintptr_t>(m_handle); }

private:
    /// One call takes 32-bit counts only.
    template <typename Step>
    static bool transfer(std::size_t length, std::size_t& done, const Step& step) {
        constexpr std::size_t mostAtOnce = 0x40000000;
        done = 0;
        while (done < length) {
            const auto count = static_cast<DWORD>(std::min(length - done, mostAtOnce));
            DWORD moved = 0;
            if (step(done, count, &moved) == FALSE) {
                return false;
            }
            if (moved == 0) {
                break;
            }
            done += moved;
        }
        return true;
    }

    HANDLE m_handle;
};

/// Whether a path may be handed to the system; if not, the last error says so.
bool isOfFile(const CXString& path) {
    const bool isDevice = isDeviceName(path);
    if (isDevice) {
        SetLastError(ERROR_INVALID_NAME);
    }
    return !isDevice;
}

std::unique_ptr<OpenFile> open(const CXString& path, DWORD access, DWORD creation) {
    const HANDLE handle = isOfFile(path) ? CreateFileW(wide(path), access, FILE_SHARE_READ, nullptr,
                                                       creation, FILE_ATTRIBUTE_NORMAL, nullptr)
                                         : INVALID_HANDLE_VALUE;
    if (handle == INVALID_HANDLE_VALUE) {
        return nullptr;
    }
    auto file = std::make_unique<WindowsFile>(handle);
    if (GetFileType(handle) != FILE_TYPE_DISK) { // such as a pipe of another machine
        file.reset();
        SetLastError(ERROR_INVALID_NAME);
    }
    return file;
}

std::uint64_t joined(FILETIME time) {
    return (std::uint64_t{time.dwHighDateTime} << 32) | time.dwLowDateTime;
}

CXString getFolder(const CXString& path) { return path.left(path.findLast(pathSeparator) + 1); }

wchar_t driverEnvironment[] = L"Windows NT x86";

/// The folder of a printer's driver, with its separator; empty on failure.
CXString getFolderOfDriver(const CXString& printerName) {
    HANDLE printer = nullptr;
    std::vector<char16_t> name(printerName.c_str(), printerName.c_str() + printerName.length() + 1);
    if (OpenPrinterW(wide(name.data()), &printer, nullptr) == FALSE) {
        return {};
    }
    CXString folder;
    DWORD needed = 0;
    if (GetPrinterDriverW(printer, driverEnvironment, 2, nullptr, 0, &needed) == FALSE &&
        GetLastError() == ERROR_INSUFFICIENT_BUFFER) {
        const DWORD size = needed + 2;
        // Allocated as what it starts with, for its alignment.
        std::vector<DRIVER_INFO_2W> buffer(size / sizeof(DRIVER_INFO_2W) + 1);
        if (GetPrinterDriverW(printer, driverEnvironment, 2,
                              reinterpret_cast<LPBYTE>(buffer.data()), size, &needed) != FALSE) {
            folder = getFolder(CXString(units(buffer.front().pDriverPath)));
        }
    }
    ClosePrinter(printer);
    return folder;
}

/// The folder of the environment's drivers of version 3, with its separator; empty on failure.
CXString getFolderOfEnvironment() {
    wchar_t buffer[260] = {};
    DWORD needed = 0;
    if (GetPrinterDriverDirectoryW(nullptr, driverEnvironment, 1, reinterpret_cast<LPBYTE>(buffer),
                                   sizeof(buffer), &needed) == FALSE) {
        return {};
    }
    CXString folder(units(buffer));
    if (folder.right(2) != u"\\3") {
        folder += u"\\3";
    }
    return folder + pathSeparator;
}

} // namespace

bool isBareName(const CXString& path) {
    return path.view().find_first_of(u"\\/:") == std::u16string_view::npos;
}

std::unique_ptr<OpenFile> OpenFile::openForReading(const CXString& path) {
    return open(path, GENERIC_READ, OPEN_EXISTING);
}

std::unique_ptr<OpenFile> OpenFile::createForWriting(const CXString& path) {
    return open(path, GENERIC_WRITE, CREATE_ALWAYS);
}

bool deleteFile(const CXString& path) { return isOfFile(path) && DeleteFileW(wide(path)) != FALSE; }

FileStamp getFileStamp(const CXString& path) {
    WIN32_FILE_ATTRIBUTE_DATA found = {};
    if (!isOfFile(path) ||
        GetFileAttributesExW(wide(path), GetFileExInfoStandard, &found) == FALSE) {
        return {};
    }
    // The file's number would need the file to be opened; its birth tells as much.
    return {.exists = true,
            .size = (std::uint64_t{found.nFileSizeHigh} << 32) | found.nFileSizeLow,
            .modified = joined(found.ftLastWriteTime),
            .identity = joined(found.ftCreationTime)};
}

CXString getModulePath() {
    constexpr DWORD capacity = 261;
    wchar_t path[capacity] = {};
    // A path that is cut would lead into a folder further up.
    const DWORD length = GetModuleFileNameW(getOwnModule(), path, capacity);
    return length < capacity ? CXString(units(path)) : CXString();
}

CXString getDriverDirectory(const CXString& printerName) {
    CXString folder;
    if (!printerName.isEmpty()) {
        folder = getFolderOfDriver(printerName);
    }
    if (folder.isEmpty()) {
        folder = getFolderOfEnvironment();
    }
    // Without a spooler a library must not be looked for in the drive's root, where anybody could
    // have put one.
    return folder.isEmpty() ? getFolder(getModulePath()) : folder;
}

} // namespace zent::platform
