#pragma once

#include <windows.h>

namespace zent::platform {

/// The access token of this process, open as long as the object lives.
class WindowsProcessToken {
public:
    /// Opens it with an access mask such as TOKEN_QUERY. On failure the last error says why.
    explicit WindowsProcessToken(DWORD access) {
        OpenProcessToken(GetCurrentProcess(), access, &m_token);
    }
    ~WindowsProcessToken() {
        if (isOpen()) {
            CloseHandle(m_token);
        }
    }
    WindowsProcessToken(const WindowsProcessToken&) = delete;
    WindowsProcessToken& operator=(const WindowsProcessToken&) = delete;

    bool isOpen() const { return m_token != nullptr; }
    HANDLE get() const { return m_token; }

private:
    HANDLE m_token = nullptr;
};

} // namespace zent::platform
