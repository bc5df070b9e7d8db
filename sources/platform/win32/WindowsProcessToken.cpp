#include "platform/win32/WindowsProcessToken.h"

#include "ocore/Faults/Exceptions.h"

namespace zent::platform {

WindowsProcessToken::WindowsProcessToken(DWORD access) {
    if (OpenProcessToken(GetCurrentProcess(), access, &m_token) == FALSE) {
        Raise<ProcessTokenRequestException>()(
            "WindowsProcessToken::WindowsProcessToken(): Call to OpenProcessToken(0x%lx) failed "
            "with LastError of 0x%lx.\r\n",
            access, GetLastError());
    }
}

} // namespace zent::platform
