#include "platform/win32/Item.h"

#include <utility>

#include "platform/win32/Dialog.h"
#include "platform/win32/GdiHandles.h"
#include "platform/win32/WideText.h"
#include "platform/win32/WindowText.h"

namespace zent::platform::win32 {

std::unique_ptr<Item> Item::make(Dialog& dialog, HWND window) {
    switch (getItemKind(window)) {
    case ItemKind::button:
        return makeButton(dialog, window);
    case ItemKind::edit:
        return makeEdit(dialog, window);
    case ItemKind::comboBox:
    case ItemKind::listBox:
        return makeChoice(dialog, window);
    case ItemKind::listView:
        return makeListView(dialog, window);
    case ItemKind::slider:
    case ItemKind::scrollBar:
    case ItemKind::spin:
        return makeRange(dialog, window);
    case ItemKind::label:
        return makeLabel(dialog, window);
    case ItemKind::other:
        break;
    }
    return std::make_unique<Item>(dialog, window);
}

Item::Item(Dialog& dialog, HWND window)
    : m_dialog(dialog), m_window(window), m_kind(getItemKind(window)),
      m_id(static_cast<std::uint16_t>(GetDlgCtrlID(window))) {}

Rectangle Item::getPlace() const {
    RECT rect = {};
    GetWindowRect(m_window, &rect);
    MapWindowPoints(nullptr, m_dialog.window(), reinterpret_cast<POINT*>(&rect), 2);
    return {rect.left, rect.top, rect.right, rect.bottom};
}

Rectangle Item::getScreenPlace() const {
    RECT rect = {};
    GetWindowRect(m_window, &rect);
    return {rect.left, rect.top, rect.right, rect.bottom};
}

void Item::moveTo(const Rectangle& place) {
    const Rectangle old = getPlace();
    // The height of a combo box includes its list when that is open, and can't be asked for.
    const bool keepsSize = old.width() == place.width() && old.height() == place.height();
    SetWindowPos(m_window, nullptr, place.left, place.top, place.width(), place.height(),
                 SWP_NOZORDER | SWP_NOACTIVATE | (keepsSize ? SWP_NOSIZE : 0U));
}

bool Item::isShown() const { return hasStyle(WS_VISIBLE); }

void Item::show(bool isShown) {
    if (!isShown) {
        leave(); // otherwise no item would have the keyboard's focus
    }
    const Dialog::Silence silence(m_dialog);
    ShowWindow(m_window, isShown ? SW_SHOW : SW_HIDE);
}

bool Item::isEnabled() const { return isThere() && !hasStyle(WS_DISABLED); }

void Item::enable(bool isEnabled) {
    if (!isEnabled) {
        leave();
    }
    EnableWindow(m_window, isEnabled ? TRUE : FALSE);
}

void Item::focus() {
    if (isShown() && isEnabled()) {
        // A radio button that gets the focus would report a click.
        const Dialog::Silence silence(m_dialog);
        SendMessageW(m_dialog.window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(m_window), TRUE);
    }
}

void Item::remove() {
    const Dialog::Silence silence(m_dialog);
    leave();
    m_dialog.forget(m_window);
    DestroyWindow(std::exchange(m_window, nullptr));
}

std::u16string Item::getText() const { return getWindowText(m_window); }

void Item::setText(std::u16string_view text) {
    const Dialog::Silence silence(m_dialog);
    setWindowText(m_window, text);
}

std::int32_t Item::getTextWidth(std::u16string_view text) const {
    const WindowSurface surface(m_window);
    const HGDIOBJ before = SelectObject(surface.get(), reinterpret_cast<HFONT>(send(WM_GETFONT)));
    SIZE size = {};
    const std::u16string copy(text);
    GetTextExtentPoint32W(surface.get(), wide(copy.c_str()), static_cast<int>(copy.size()), &size);
    SelectObject(surface.get(), before);
    return size.cx;
}

void Item::setToolTip(std::u16string_view text) { m_dialog.setToolTip(m_window, text); }

void Item::setProperty(std::u16string_view name, std::uintptr_t value) {
    m_dialog.setProperty(m_window, name, value);
}

bool Item::hasStyle(std::uint32_t bits) const {
    return (static_cast<std::uint32_t>(GetWindowLongW(m_window, GWL_STYLE)) & bits) == bits;
}

LRESULT Item::send(UINT message, WPARAM wParam, LPARAM lParam) const {
    if (m_window == nullptr) {
        return 0;
    }
    const Dialog::Silence silence(m_dialog);
    return SendMessageW(m_window, message, wParam, lParam);
}

void Item::leave() const {
    const HWND focus = GetFocus();
    if (focus != nullptr && (focus == m_window || IsChild(m_window, focus))) {
        const Dialog::Silence silence(m_dialog);
        SendMessageW(m_dialog.window(), WM_NEXTDLGCTL, 0, FALSE);
    }
}

} // namespace zent::platform::win32
