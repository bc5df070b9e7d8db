#include "platform/Files.h"

#include <algorithm>
#include <vector>

#include "platform/win32/DeviceName.h"
#include "platform/win32/Module.h"
#include "platform/win32/Patience.h"
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

    bool read(std::span<std::byte> buffer, std::size_t& done) override {
        return transfer(buffer, done, [this](std::byte* rest, DWORD count, DWORD* moved) {
            return ReadFile(m_handle, rest, count, moved, nullptr);
        });
    }

    bool write(std::span<const std::byte> bytes, std::size_t& done) override {
        return transfer(bytes, done, [this](const std::byte* rest, DWORD count, DWORD* moved) {
            return WriteFile(m_handle, rest, count, moved, nullptr);
        });
    }

    std::uintptr_t getHandle() const override { return reinterpret_cast<std::uintptr_t>(m_handle); }

private:
    /// Moves bytes with one call, which takes 32-bit counts only.
    template <typename Byte, typename Step>
    static bool transfer(std::span<Byte> bytes, std::size_t& done, const Step& step) {
        constexpr std::size_t mostAtOnce = 0x40000000;
        done = 0;
        while (done < bytes.size()) {
            const auto count = static_cast<DWORD>(std::min(bytes.size() - done, mostAtOnce));
            DWORD moved = 0;
            if (step(bytes.data() + done, count, &moved) == FALSE) {
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
bool isOfFile(std::u16string_view path) {
    const bool isDevice = isDeviceName(path);
    if (isDevice) {
        SetLastError(ERROR_INVALID_NAME);
    }
    return !isDevice;
}

std::unique_ptr<OpenFile> open(std::u16string_view path, DWORD access, DWORD sharing,
                               DWORD creation) {
    if (!isOfFile(path)) {
        return nullptr;
    }
    const std::wstring name = terminated(path);
    constexpr Patience patience = {.whileOpen = 500, .whileDenied = 500};
    HANDLE handle = INVALID_HANDLE_VALUE;
    whileOthersUseIt(patience, [&] {
        handle = CreateFileW(name.c_str(), access, sharing, nullptr, creation,
                             FILE_ATTRIBUTE_NORMAL, nullptr);
        return handle != INVALID_HANDLE_VALUE;
    });
    if (handle == INVALID_HANDLE_VALUE) {
        return nullptr;
    }
    auto file = std::make_unique<WindowsFile>(handle);
    if (GetFileType(handle) != FILE_TYPE_DISK) { // it may be a pipe of another machine
        file.reset();
        SetLastError(ERROR_INVALID_NAME);
    }
    return file;
}

std::uint64_t joined(FILETIME time) {
    return (std::uint64_t{time.dwHighDateTime} << 32) | time.dwLowDateTime;
}

std::u16string getFolder(std::u16string_view path) {
    return std::u16string(path.substr(0, path.rfind(pathSeparator) + 1));
}

wchar_t driverEnvironment[] = L"Windows NT x86";

/// The folder of a printer's driver, with its separator; empty on failure.
std::u16string getFolderOfDriver(std::u16string_view printerName) {
    HANDLE printer = nullptr;
    if (OpenPrinterW(terminated(printerName).data(), &printer, nullptr) == FALSE) {
        return {};
    }
    std::u16string folder;
    DWORD needed = 0;
    if (GetPrinterDriverW(printer, driverEnvironment, 2, nullptr, 0, &needed) == FALSE &&
        GetLastError() == ERROR_INSUFFICIENT_BUFFER) {
        const DWORD size = needed + 2;
        // Allocated as what it starts with, for its alignment.
        std::vector<DRIVER_INFO_2W> buffer(size / sizeof(DRIVER_INFO_2W) + 1);
        if (GetPrinterDriverW(printer, driverEnvironment, 2,
                              reinterpret_cast<LPBYTE>(buffer.data()), size, &needed) != FALSE) {
            folder = getFolder(units(buffer.front().pDriverPath));
        }
    }
    ClosePrinter(printer);
    return folder;
}

/// The folder of the environment's drivers of version 3, with its separator; empty on failure.
std::u16string getFolderOfEnvironment() {
    wchar_t buffer[260] = {};
    DWORD needed = 0;
    if (GetPrinterDriverDirectoryW(nullptr, driverEnvironment, 1, reinterpret_cast<LPBYTE>(buffer),
                                   sizeof(buffer), &needed) == FALSE) {
        return {};
    }
    std::u16string folder = units(buffer);
    if (!folder.ends_with(u"\\3")) {
        folder += u"\\3";
    }
    return folder + pathSeparator;
}

} // namespace

bool isBareName(std::u16string_view path) {
    return path.find_first_of(u"\\/:") == std::u16string_view::npos;
}

std::unique_ptr<OpenFile> OpenFile::openForReading(std::u16string_view path) {
    return open(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE, OPEN_EXISTING);
}

std::unique_ptr<OpenFile> OpenFile::createForWriting(std::u16string_view path) {
    return open(path, GENERIC_WRITE, FILE_SHARE_READ, CREATE_ALWAYS);
}

bool deleteFile(std::u16string_view path) {
    return isOfFile(path) && DeleteFileW(terminated(path).c_str()) != FALSE;
}

FileStamp getFileStamp(std::u16string_view path) {
    WIN32_FILE_ATTRIBUTE_DATA found = {};
    if (!isOfFile(path) ||
        GetFileAttributesExW(terminated(path).c_str(), GetFileExInfoStandard, &found) == FALSE) {
        return {};
    }
    // The time of creation stands for the file's number, for which the file would have to be
    // opened.
    return {.exists = true,
            .size = (std::uint64_t{found.nFileSizeHigh} << 32) | found.nFileSizeLow,
            .modified = joined(found.ftLastWriteTime),
            .identity = joined(found.ftCreationTime)};
}

std::u16string getModulePath() {
    constexpr DWORD capacity = 261;
    wchar_t path[capacity] = {};
    // A path that was cut would lead to another folder.
    const DWORD length = GetModuleFileNameW(getOwnModule(), path, capacity);
    return length < capacity ? std::u16string(units(path), length) : std::u16string();
}

std::u16string getDriverDirectory(std::u16string_view printerName) {
    std::u16string folder;
    if (!printerName.empty()) {
        folder = getFolderOfDriver(printerName);
    }
    if (folder.empty()) {
        folder = getFolderOfEnvironment();
    }
    // Without a spooler a library must not be looked for in the drive's root, where anybody could
    // have put one.
    return folder.empty() ? getFolder(getModulePath()) : folder;
}

} // namespace zent::platform
