// This source turns what the items report to their dialog into the port's events.

#include <algorithm>
#include <optional>

#include "platform/win32/Dialog.h"
#include "platform/win32/MaskedBitmap.h"
#include "platform/win32/ResourceImages.h"

namespace zent::platform::win32 {

namespace {

/// The port's code for a command; nothing for a command that it doesn't report.
std::optional<std::uint32_t> asNotification(HWND control, std::uint32_t code) {
    const auto oneOf = [code](std::uint32_t first, std::uint32_t second) {
        return code == first || code == second ? std::optional(code) : std::nullopt;
    };
    switch (getItemKind(control)) {
    case ItemKind::button:
        // The second of two quick clicks on an owner-drawn button comes with another code, and is a
        // click as well.
        if (code == BN_DOUBLECLICKED &&
            (GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK) == BS_OWNERDRAW) {
            return notification::clicked;
        }
        return oneOf(notification::clicked, notification::clicked);
    case ItemKind::comboBox:
        return oneOf(notification::comboSelected, notification::comboEdited);
    case ItemKind::listBox:
        return oneOf(notification::listSelected, notification::listDoubleClicked);
    case ItemKind::edit:
        return oneOf(notification::editChanged, notification::editLeft);
    default:
        return std::nullopt;
    }
}

/// Once the text of a combo box is edited, no text of its list is chosen. The system would keep the
/// choice.
void deselect(HWND comboBox) {
    constexpr WPARAM none = static_cast<WPARAM>(-1);
    COMBOBOXINFO parts = {};
    parts.cbSize = sizeof(parts);
    if (GetComboBoxInfo(comboBox, &parts) != FALSE) {
        SendMessageW(parts.hwndList, LB_SETCURSEL, none, 0);
    }
}

/// Moves a scroll bar: unlike a slider, it leaves that to its dialog.
int moveScrollBar(HWND bar, std::uint32_t code) {
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    GetScrollInfo(bar, SB_CTL, &info);
    const int page = std::max(1, (info.nMax - info.nMin) / 10);
    switch (code) {
    case SB_LINELEFT:
        info.nPos -= 1;
        break;
    case SB_LINERIGHT:
        info.nPos += 1;
        break;
    case SB_PAGELEFT:
        info.nPos -= page;
        break;
    case SB_PAGERIGHT:
        info.nPos += page;
        break;
    case SB_LEFT:
        info.nPos = info.nMin;
        break;
    case SB_RIGHT:
        info.nPos = info.nMax;
        break;
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK:
        info.nPos = info.nTrackPos;
        break;
    default:
        break;
    }
    info.fMask = SIF_POS;
    return SetScrollInfo(bar, SB_CTL, &info, TRUE);
}

} // namespace

bool Dialog::onCommand(std::uint16_t id, std::uint32_t code, HWND control) {
    // The keyboard's commands come without a control where the dialog has no such item.
    const auto notification =
        control != nullptr ? asNotification(control, code) : std::optional(notification::clicked);
    // The loss of the focus is reported whoever has moved it.
    const bool isTold = raisesEvents() || (!m_hasEnded && notification == notification::editLeft);
    if (!notification || !isTold) {
        return false;
    }
    if (*notification == notification::clicked) {
        return onClick(id);
    }
    if (*notification == notification::comboEdited) {
        deselect(control);
    }
    return command(id, *notification);
}

/// By the mouse or a key: Enter and Escape press OK and Cancel, the cross in the frame is Cancel.
bool Dialog::onClick(std::uint16_t id) {
    const Item* const item = findItem(id);
    if (item != nullptr && !item->isEnabled()) {
        return true;
    }
    const bool isHandled = command(id, notification::clicked);
    if (id == IDCANCEL && !m_hasEnded) {
        end(0);
        destroy();
    }
    return isHandled;
}

bool Dialog::onNotify(const NMHDR& header) {
    if (!raisesEvents()) {
        return false;
    }
    switch (getItemKind(header.hwndFrom)) {
    case ItemKind::spin:
        return header.code == UDN_DELTAPOS && onSpinStep(reinterpret_cast<const NMUPDOWN&>(header));
    case ItemKind::listView:
        if (header.code == LVN_ITEMCHANGING) {
            onListViewChanging(reinterpret_cast<const NMLISTVIEW&>(header));
            return false; // the answer doesn't matter
        }
        return (header.code == LVN_ITEMCHANGED || header.code == NM_DBLCLK) &&
               onListView(reinterpret_cast<const NMLISTVIEW&>(header));
    default:
        return false;
    }
}

bool Dialog::notify(const Notification& notification) {
    std::intptr_t result = 0;
    const bool isHandled = deliver(event::notify, notification.item,
                                   reinterpret_cast<std::intptr_t>(&notification), result);
    return isHandled || result != 0;
}

bool Dialog::onSpinStep(const NMUPDOWN& step) {
    int lower = 0;
    int upper = 0;
    SendMessageW(step.hdr.hwndFrom, UDM_GETRANGE32, reinterpret_cast<WPARAM>(&lower),
                 reinterpret_cast<LPARAM>(&upper));
    // The range may be reversed: a spin without a range of its own counts from 100 up to 0.
    const bool countsUp = lower <= upper;
    Notification notification;
    notification.item = static_cast<std::uint16_t>(step.hdr.idFrom);
    notification.code = notification::spinStep;
    notification.position = step.iPos;
    notification.delta = countsUp ? -step.iDelta : step.iDelta;
    return notify(notification);
}

void Dialog::onListViewChanging(const NMLISTVIEW& row) {
    const bool isSelection =
        (row.uChanged & LVIF_STATE) != 0 && ((row.uNewState ^ row.uOldState) & LVIS_SELECTED) != 0;
    if (!isSelection) {
        return;
    }
    Notification notification;
    notification.item = static_cast<std::uint16_t>(row.hdr.idFrom);
    notification.code = notification::listViewChanging;
    notification.row = row.iItem;
    notification.newState = row.uNewState & (LVIS_FOCUSED | LVIS_SELECTED);
    notify(notification);
}

bool Dialog::onListView(const NMLISTVIEW& row) {
    constexpr UINT marks = LVIS_SELECTED | LVIS_STATEIMAGEMASK;
    const bool isActivated = row.hdr.code == NM_DBLCLK;
    const bool isChanged =
        (row.uChanged & LVIF_STATE) != 0 && ((row.uNewState ^ row.uOldState) & marks) != 0;
    if (isActivated ? row.iItem < 0 : !isChanged) {
        return false;
    }
    Notification notification;
    notification.item = static_cast<std::uint16_t>(row.hdr.idFrom);
    notification.code =
        isActivated ? notification::listViewActivated : notification::listViewChanged;
    notification.row = row.iItem;
    notification.column = row.iSubItem;
    return notify(notification);
}

bool Dialog::onScroll(std::uint32_t code, HWND control) {
    const ItemKind kind = getItemKind(control);
    const bool isSlider = kind == ItemKind::slider;
    if ((!isSlider && kind != ItemKind::scrollBar) || code == SB_ENDSCROLL || !raisesEvents()) {
        return false;
    }
    const auto position = isSlider
                              ? static_cast<std::uint32_t>(SendMessageW(control, TBM_GETPOS, 0, 0))
                              : static_cast<std::uint32_t>(moveScrollBar(control, code));
    std::intptr_t result = 0;
    return deliver(event::horizontalScroll, MAKEWPARAM(0, position), GetDlgCtrlID(control), result);
}

void Dialog::tellMouse(std::uint32_t message, std::uint16_t item, LPARAM place) {
    if (raisesEvents()) {
        const auto kept = shared_from_this(); // the event may end the dialog
        std::intptr_t result = 0;
        deliver(message, item, place, result);
    }
}

bool Dialog::onDrawItem(const DRAWITEMSTRUCT& request) {
    if (request.CtlType != ODT_BUTTON) {
        return false;
    }
    if ((request.itemAction & (ODA_DRAWENTIRE | ODA_SELECT)) == 0) {
        // Drawn a second time, the rectangle disappears.
        DrawFocusRect(request.hDC, &request.rcItem);
        return true;
    }
    FillRect(request.hDC, &request.rcItem, GetSysColorBrush(COLOR_3DFACE));
    DrawRequest wanted;
    wanted.item = static_cast<std::uint16_t>(request.CtlID);
    wanted.action = request.itemAction;
    wanted.state = request.itemState;
    wanted.drawBitmap = [&](std::uint32_t bitmap) {
        const RECT& place = request.rcItem;
        const MaskedBitmap picture(createBitmap(m_resources, bitmap));
        picture.draw(request.hDC, (place.left + place.right - picture.size().cx) / 2,
                     (place.top + place.bottom - picture.size().cy) / 2);
    };
    std::intptr_t result = 0;
    deliver(event::drawItem, request.CtlID, reinterpret_cast<std::intptr_t>(&wanted), result);
    if ((request.itemState & ODS_FOCUS) != 0) {
        DrawFocusRect(request.hDC, &request.rcItem);
    }
    return true;
}

HBRUSH Dialog::onColor(HDC target, HWND control) const {
    if (!m_transparent.contains(control)) {
        return nullptr;
    }
    SetBkMode(target, TRANSPARENT);
    SetTextColor(target, GetSysColor(COLOR_WINDOWTEXT));
    return GetSysColorBrush(COLOR_3DFACE);
}

} // namespace zent::platform::win32
