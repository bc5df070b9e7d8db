#pragma once

#include <windows.h>

namespace zent::platform {

/// A library of the system that not every Windows has, loaded as long as the object lives.
class SystemLibrary {
public:
    explicit SystemLibrary(const wchar_t* name) : m_module(LoadLibraryW(name)) {}
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
    HMODULE m_module;
};

} // namespace zent::platform
