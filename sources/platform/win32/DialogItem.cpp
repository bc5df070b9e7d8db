#include "platform/win32/DialogItem.h"

#include <algorithm>

#include "platform/win32/Dialog.h"

namespace zent::platform::win32 {

DialogItem::DialogItem(WindowHandle dialog, std::uint16_t id)
    : m_dialog(Dialog::of(dialog)), m_id(id) {
    if (m_dialog != nullptr) {
        m_window = m_dialog->find(id);
        m_kind = getItemKind(m_window);
    }
}

DialogItem::DialogItem(WindowHandle dialog, std::uint16_t id, std::initializer_list<ItemKind> kinds)
    : DialogItem(dialog, id) {
    if (std::find(kinds.begin(), kinds.end(), m_kind) == kinds.end()) {
        m_window = nullptr;
    }
}

DialogItem::~DialogItem() = default;

bool DialogItem::hasStyle(std::uint32_t style) const {
    return (static_cast<std::uint32_t>(GetWindowLongW(m_window, GWL_STYLE)) & style) == style;
}

LRESULT DialogItem::send(UINT message, WPARAM wParam, LPARAM lParam) const {
    if (m_window == nullptr) {
        return 0;
    }
    const Dialog::Silence silence(*m_dialog);
    return SendMessageW(m_window, message, wParam, lParam);
}

void DialogItem::leave() const {
    const HWND focus = GetFocus();
    if (focus != nullptr && (focus == m_window || IsChild(m_window, focus))) {
        const Dialog::Silence silence(*m_dialog);
        SendMessageW(m_dialog->window(), WM_NEXTDLGCTL, 0, FALSE);
    }
}

} // namespace zent::platform::win32
