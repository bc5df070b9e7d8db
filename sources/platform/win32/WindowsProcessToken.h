#pragma once

#include <windows.h>

namespace zent::platform {

/// The access token of this process, open as long as the object lives.
class WindowsProcessToken {
public:
    /// Opens it with an access mask such as TOKEN_QUERY. Raises ProcessTokenRequestException.
    explicit WindowsProcessToken(DWORD access);
    ~WindowsProcessToken() { CloseHandle(m_token); }
    WindowsProcessToken(const WindowsProcessToken&) = delete;
    WindowsProcessToken& operator=(const WindowsProcessToken&) = delete;

    HANDLE get() const { return m_token; }

private:
    HANDLE m_token = nullptr;
};

} // namespace zent::platform
