#ifdef _WIN32
// RegDeleteTree is of later systems than the oldest that the library serves.
#undef WINVER
#undef _WIN32_WINNT
#define WINVER 0x0600
#define _WIN32_WINNT 0x0600
#include <windows.h>
#endif

#include "support/ScratchUser.h"

#include <stdexcept>
#include <string>

#ifndef _WIN32
#include "platform/posix/Environment.h"
#include "support/TemporaryFolder.h"
#endif

namespace zent::test {

#ifdef _WIN32

namespace {

void require(LSTATUS status) {
    if (status != ERROR_SUCCESS) {
        throw std::runtime_error("registry: error " + std::to_string(status));
    }
}

} // namespace

/// For this process, an empty key of its own is the root of the user's registry.
struct ScratchUser::Native {
    std::wstring path = L"SOFTWARE\\ZentTests\\" + std::to_wstring(GetCurrentProcessId());
    HKEY root = nullptr;

    Native() {
        RegDeleteTreeW(HKEY_CURRENT_USER, path.c_str());
        require(RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                                nullptr, &root, nullptr));
        require(RegOverridePredefKey(HKEY_CURRENT_USER, root));
    }
    ~Native() {
        RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        RegCloseKey(root);
        RegDeleteTreeW(HKEY_CURRENT_USER, path.c_str());
    }
    Native(const Native&) = delete;
    Native& operator=(const Native&) = delete;

    void clear() const { require(RegDeleteTreeW(root, nullptr)); }
};

#else

/// The user's home and configuration folder are an empty folder.
struct ScratchUser::Native {
    TemporaryFolder folder;
    Environment home{"HOME", folder.path().string()};
    Environment configuration{"XDG_CONFIG_HOME", folder.path().string()};

    void clear() const { std::filesystem::remove_all(folder.path() / "zent27"); }
};

#endif

ScratchUser::ScratchUser() : m_native(std::make_unique<Native>()) {}
ScratchUser::~ScratchUser() = default;
void ScratchUser::clear() { m_native->clear(); }

} // namespace zent::test
