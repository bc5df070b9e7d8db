// RegDeleteTree is of later systems than the oldest that the library serves.
#undef WINVER
#undef _WIN32_WINNT
#define WINVER 0x0600
#define _WIN32_WINNT 0x0600

#include "support/ScratchPreferences.h"

#include <stdexcept>
#include <string>

#include <windows.h>

namespace zent::test {

namespace {

void require(LSTATUS status) {
    if (status != ERROR_SUCCESS) {
        throw std::runtime_error("registry: error " + std::to_string(status));
    }
}

} // namespace

/// For this process, an empty key of its own is the root of the user's registry.
struct ScratchPreferences::Native {
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
};

ScratchPreferences::ScratchPreferences() : m_native(std::make_unique<Native>()) {}
ScratchPreferences::~ScratchPreferences() = default;

void ScratchPreferences::clear() { require(RegDeleteTreeW(m_native->root, nullptr)); }

} // namespace zent::test
