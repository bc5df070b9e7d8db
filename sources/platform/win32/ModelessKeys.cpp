#include "platform/win32/ModelessKeys.h"

namespace zent::platform::win32 {

namespace {

/// The property that marks a dialog whose keys are handled here.
constexpr const wchar_t* modelessProperty = L"SC_MODELESS";

bool isKey(const MSG& message) {
    return message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
}

} // namespace

ModelessKeys::ModelessKeys(HWND dialog)
    : m_dialog(dialog),
      m_hook(SetWindowsHookExW(WH_GETMESSAGE, &translate, nullptr, GetCurrentThreadId())) {
    SetPropW(m_dialog, modelessProperty, m_hook);
}

ModelessKeys::~ModelessKeys() {
    RemovePropW(m_dialog, modelessProperty);
    UnhookWindowsHookEx(m_hook);
}

LRESULT CALLBACK ModelessKeys::translate(int code, WPARAM removed, LPARAM message) {
    MSG& taken = *reinterpret_cast<MSG*>(message);
    if (code == HC_ACTION && removed == PM_REMOVE && isKey(taken)) {
        const HWND window = GetAncestor(taken.hwnd, GA_ROOT);
        if (GetPropW(window, modelessProperty) != nullptr && IsDialogMessageW(window, &taken)) {
            taken.message = WM_NULL; // so that the loop does nothing more with it
        }
    }
    return CallNextHookEx(nullptr, code, removed, message);
}

} // namespace zent::platform::win32
