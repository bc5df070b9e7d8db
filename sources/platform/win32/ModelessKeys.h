#pragma once

#include <windows.h>

namespace zent::platform::win32 {

/// The keyboard of a modeless dialog: Tab, Enter, Escape and the like work in it, whichever message
/// loop of the thread serves it. The loop is the application's or another dialog's, and neither
/// knows of it.
class ModelessKeys {
public:
    explicit ModelessKeys(HWND dialog);
    ~ModelessKeys();
    ModelessKeys(const ModelessKeys&) = delete;
    ModelessKeys& operator=(const ModelessKeys&) = delete;

private:
    static LRESULT CALLBACK translate(int code, WPARAM removed, LPARAM message);

    HWND m_dialog;
    HHOOK m_hook;
};

} // namespace zent::platform::win32
