#pragma once

#include <string>

#include <windows.h>

namespace zent::platform {

/// A library of the system that not every Windows has, loaded as long as the object lives. It comes
/// from the system's folder alone: by its bare name it would be looked for in the application's
/// folder, and in the one that the process is in, where somebody may have put another of that name.
class SystemLibrary {
public:
    explicit SystemLibrary(const wchar_t* name) : m_module(load(name)) {}
    ~SystemLibrary() {
        if (m_module != nullptr) {
            FreeLibrary(m_module);
        }
    }
    SystemLibrary(const SystemLibrary&) = delete;
    SystemLibrary& operator=(const SystemLibrary&) = delete;

    bool isLoaded() const { return m_module != nullptr; }

    /// A function of the library, such as find<decltype(&ExitProcess)>("ExitProcess"); null if the
    /// library isn't loaded or has none of that name.
    template <typename Function>
    Function find(const char* name) const {
        return isLoaded() ? reinterpret_cast<Function>(
                                reinterpret_cast<void*>(GetProcAddress(m_module, name)))
                          : nullptr;
    }

private:
    /// With the altered search path, what the library itself needs isn't looked for in the
    /// application's folder either.
    static HMODULE load(const wchar_t* name) {
        std::wstring path(GetSystemDirectoryW(nullptr, 0), L'\0'); // with room for its end
        const UINT length = GetSystemDirectoryW(path.data(), static_cast<UINT>(path.size()));
        if (length == 0 || length >= path.size()) {
            return nullptr;
        }
        path.replace(length, path.npos, L"\\").append(name);
        return LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    }

    HMODULE m_module;
};

} // namespace zent::platform
