#include "platform/LockedFile.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "platform/win32/DeviceName.h"
#include "platform/win32/Patience.h"
#include "platform/win32/WideText.h"

namespace zent::platform {

namespace {

class Handle {
public:
    explicit Handle(HANDLE handle) : m_handle(handle) {}
    ~Handle() { reset(); }
    Handle(Handle&& other) noexcept
        : m_handle(std::exchange(other.m_handle, INVALID_HANDLE_VALUE)) {}
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    Handle& operator=(Handle&&) = delete;

    bool isOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return m_handle; }
    /// Closes the handle. The last error stays as it was.
    void reset() {
        const DWORD error = GetLastError();
        if (isOpen()) {
            CloseHandle(std::exchange(m_handle, INVALID_HANDLE_VALUE));
        }
        SetLastError(error);
    }

private:
    HANDLE m_handle;
};

const wchar_t* wide(const std::u16string& text) { return platform::wide(text.c_str()); }

/// Removes a file. The last error stays as it was.
void removeQuietly(const std::u16string& path) {
    const DWORD error = GetLastError();
    DeleteFileW(wide(path));
    SetLastError(error);
}

Handle openToAsk(const std::u16string& path) {
    return Handle(CreateFileW(wide(path), FILE_READ_ATTRIBUTES,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                              OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

/// The file that a path leads to. Systems before links have no function that follows them.
std::u16string followLinks(const std::u16string& path) {
    using GetPath = DWORD(WINAPI*)(HANDLE, wchar_t*, DWORD, DWORD);
    const DWORD attributes = GetFileAttributesW(wide(path));
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        return path;
    }
    const auto getPath = reinterpret_cast<GetPath>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "GetFinalPathNameByHandleW")));
    const Handle file = openToAsk(path);
    if (getPath == nullptr || !file.isOpen()) {
        return path;
    }
    std::vector<wchar_t> buffer(32'768); // the longest path that the system has
    const DWORD length = getPath(file.get(), buffer.data(), static_cast<DWORD>(buffer.size()), 0);
    return length == 0 || length >= buffer.size() ? path
                                                  : std::u16string(units(buffer.data()), length);
}

/// The beginning of the names of the files that are made beside a file: its lock and its new
/// content. Long names are cut, since nothing could be added to them otherwise, and may share a
/// beginning.
std::u16string makeStem(const std::u16string& path) {
    constexpr std::size_t longest = 180; // of the 255 units that a name may have
    const std::u16string folder = path.substr(0, path.find_last_of(u"\\/:") + 1);
    return folder + u'.' + path.substr(folder.size(), longest) + u".zent-";
}

/// Gives the open file of a lock, which nobody else can open meanwhile; a closed one on failure.
Handle acquire(const std::u16string& path) {
    constexpr Patience patience = {.whileOpen = 30'000, .whileDenied = 1'000};
    HANDLE file = INVALID_HANDLE_VALUE;
    whileOthersUseIt(patience, [&] {
        file = CreateFileW(wide(path), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                           FILE_ATTRIBUTE_NORMAL, nullptr);
        return file != INVALID_HANDLE_VALUE;
    });
    return Handle(file);
}

/// The security descriptor of a file; empty if there is no file.
std::vector<char> readProtection(const std::u16string& path) {
    DWORD size = 0;
    GetFileSecurityW(wide(path), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<char> descriptor(size);
    const bool isRead = size > 0 && GetFileSecurityW(wide(path), DACL_SECURITY_INFORMATION,
                                                     descriptor.data(), size, &size) != FALSE;
    return isRead ? descriptor : std::vector<char>();
}

bool writeAll(const Handle& file, std::span<const std::byte> bytes) {
    constexpr std::size_t mostAtOnce = 0x40000000;
    while (!bytes.empty()) {
        const auto count = static_cast<DWORD>(std::min(bytes.size(), mostAtOnce));
        DWORD written = 0;
        if (WriteFile(file.get(), bytes.data(), count, &written, nullptr) == FALSE) {
            return false;
        }
        bytes = bytes.subspan(written);
    }
    return true;
}

class WindowsLockedFile final : public LockedFile {
public:
    WindowsLockedFile(std::u16string path, Handle lock)
        : m_path(std::move(path)), m_stem(makeStem(m_path)), m_lock(std::move(lock)) {}

    ~WindowsLockedFile() override {
        // A file of that name that isn't empty belongs to somebody else. A file that another
        // process has opened by now stays, for that process to remove.
        const bool isEmpty = GetFileSize(m_lock.get(), nullptr) == 0;
        m_lock.reset();
        if (isEmpty) {
            removeQuietly(lockOf(m_stem));
        }
    }

    static std::u16string lockOf(const std::u16string& stem) { return stem + u"lock"; }

    bool replace(std::span<const std::byte> bytes) override {
        const std::u16string temporary = m_stem + u"new";
        removeQuietly(temporary); // nobody else writes while the lock is held
        Handle file = createTemporary(temporary);
        if (!file.isOpen()) {
            return false;
        }
        const bool isWritten = writeAll(file, bytes) && FlushFileBuffers(file.get()) != FALSE;
        file.reset();
        bool isReplaced = false;
        if (isWritten) {
            // Readers hold no lock, and a file that they have open can't be replaced.
            constexpr Patience patience = {.whileOpen = 2'000, .whileDenied = 2'000};
            whileOthersUseIt(patience, [&] {
                isReplaced =
                    MoveFileExW(wide(temporary), wide(m_path),
                                MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
                return isReplaced;
            });
        }
        if (!isReplaced) {
            removeQuietly(temporary);
        }
        return isReplaced;
    }

private:
    /// Creates the new file with the protection of the old one, so that nobody can read more than
    /// before.
    Handle createTemporary(const std::u16string& path) const {
        std::vector<char> protection = readProtection(m_path);
        SECURITY_ATTRIBUTES attributes = {sizeof attributes, protection.data(), FALSE};
        return Handle(CreateFileW(wide(path), GENERIC_WRITE, 0,
                                  protection.empty() ? nullptr : &attributes, CREATE_NEW,
                                  FILE_ATTRIBUTE_NORMAL, nullptr));
    }

    std::u16string m_path;
    std::u16string m_stem;
    Handle m_lock;
};

} // namespace

FileKind getFileKind(std::u16string_view path) {
    if (isDeviceName(path)) {
        SetLastError(ERROR_INVALID_NAME);
        return FileKind::unknown;
    }
    const std::u16string name(path);
    const DWORD attributes = GetFileAttributesW(wide(name));
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const DWORD error = GetLastError();
        const bool isMissing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
        return isMissing ? FileKind::missing : FileKind::unknown;
    }
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return FileKind::folder;
    }
    const Handle file = openToAsk(name);
    const bool isDevice = file.isOpen() && GetFileType(file.get()) != FILE_TYPE_DISK;
    return isDevice ? FileKind::device : FileKind::regular;
}

std::unique_ptr<LockedFile> LockedFile::lock(std::u16string_view path) {
    if (isDeviceName(path)) {
        SetLastError(ERROR_INVALID_NAME);
        return nullptr;
    }
    const std::u16string target = followLinks(std::u16string(path));
    Handle lock = acquire(WindowsLockedFile::lockOf(makeStem(target)));
    return lock.isOpen() ? std::make_unique<WindowsLockedFile>(target, std::move(lock)) : nullptr;
}

} // namespace zent::platform
