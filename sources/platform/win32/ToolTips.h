#pragma once

#include <string_view>

#include <windows.h>

namespace zent::platform::win32 {

/// The tool tips of a dialog's items. Their window comes with the first text and goes with the
/// dialog that owns it.
class ToolTips {
public:
    /// An empty text takes the item's tip away.
    void set(HWND dialog, HWND item, std::u16string_view text);

private:
    void create(HWND dialog);

    HWND m_window = nullptr;
};

} // namespace zent::platform::win32
