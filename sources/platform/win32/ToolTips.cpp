#include "platform/win32/ToolTips.h"

#include <string>

#include "platform/win32/WideText.h"

#include <commctrl.h>

namespace zent::platform::win32 {

namespace {

/// The tip of a whole item, in the form that the oldest common controls know, which refuse longer
/// ones.
TTTOOLINFOW toolOf(HWND dialog, HWND item) {
    TTTOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = dialog;
    tool.uId = reinterpret_cast<UINT_PTR>(item);
    return tool;
}

} // namespace

void ToolTips::set(HWND dialog, HWND item, std::u16string_view text) {
    if (m_window == nullptr && text.empty()) {
        return;
    }
    if (m_window == nullptr) {
        create(dialog);
    }
    TTTOOLINFOW tool = toolOf(dialog, item);
    const auto pointer = reinterpret_cast<LPARAM>(&tool);
    SendMessageW(m_window, TTM_DELTOOLW, 0, pointer);
    if (!text.empty()) {
        std::u16string copy(text);
        tool.lpszText = wide(copy.data());
        SendMessageW(m_window, TTM_ADDTOOLW, 0, pointer);
    }
}

void ToolTips::create(HWND dialog) {
    constexpr LPARAM widestTip = 300; // pixels; longer texts take several lines
    m_window =
        CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                        WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, CW_USEDEFAULT, CW_USEDEFAULT,
                        CW_USEDEFAULT, CW_USEDEFAULT, dialog, nullptr, nullptr, nullptr);
    SetWindowPos(m_window, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    SendMessageW(m_window, TTM_SETMAXTIPWIDTH, 0, widestTip);
}

} // namespace zent::platform::win32
