// Items of any kind, buttons, check boxes, sliders and pictures.

#include "platform/win32/Dialog.h"
#include "platform/win32/DialogItem.h"
#include "platform/win32/Picture.h"
#include "platform/win32/ResourceImages.h"
#include "platform/win32/Win32WindowSystem.h"
#include "platform/win32/WindowText.h"

namespace zent::platform::win32 {

namespace {

Rectangle getPlace(HWND item, HWND dialog) {
    RECT rect = {};
    GetWindowRect(item, &rect);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
    return {rect.left, rect.top, rect.right, rect.bottom};
}

bool isMarkedButton(const Dialog::Item& item) {
    constexpr LONG lowestBits = 7;
    return item.kind == ItemKind::button &&
           (GetWindowLongW(item.window, GWL_STYLE) & lowestBits) != 0;
}

LONG getButtonType(HWND button) { return GetWindowLongW(button, GWL_STYLE) & BS_TYPEMASK; }

constexpr std::initializer_list<ItemKind> ranges = {ItemKind::slider, ItemKind::scrollBar,
                                                    ItemKind::spin};

} // namespace

std::vector<WindowSystem::Item> Win32WindowSystem::getItems(WindowHandle dialog) {
    std::vector<Item> items;
    if (const auto found = Dialog::of(dialog)) {
        for (const Dialog::Item& item : found->items()) {
            items.push_back(
                {item.id, getPlace(item.window, found->window()), isMarkedButton(item)});
        }
    }
    return items;
}

bool Win32WindowSystem::hasItem(WindowHandle dialog, std::uint16_t item) {
    return bool(DialogItem(dialog, item));
}

void Win32WindowSystem::moveItem(WindowHandle dialog, std::size_t index, const Rectangle& place) {
    const auto found = Dialog::of(dialog);
    if (found == nullptr || index >= found->items().size()) {
        return;
    }
    const HWND window = found->items()[index].window;
    const Rectangle old = getPlace(window, found->window());
    // The size of a combo box says how far its list drops down, and can't be asked for.
    const bool keepsSize = old.width() == place.width() && old.height() == place.height();
    SetWindowPos(window, nullptr, place.left, place.top, place.width(), place.height(),
                 SWP_NOZORDER | SWP_NOACTIVATE | (keepsSize ? SWP_NOSIZE : 0U));
}

void Win32WindowSystem::showItem(WindowHandle dialog, std::uint16_t item, bool isShown) {
    if (const DialogItem found(dialog, item); found) {
        if (!isShown) {
            found.leave(); // else the keyboard would be lost
        }
        const Dialog::Silence silence(found.dialog());
        ShowWindow(found.window(), isShown ? SW_SHOW : SW_HIDE);
    }
}

/// By itself, whether the dialog is visible or not.
bool Win32WindowSystem::isItemShown(WindowHandle dialog, std::uint16_t item) {
    const DialogItem found(dialog, item);
    return found && found.hasStyle(WS_VISIBLE);
}

void Win32WindowSystem::enableItem(WindowHandle dialog, std::uint16_t item, bool isEnabled) {
    if (const DialogItem found(dialog, item); found) {
        if (!isEnabled) {
            found.leave();
        }
        EnableWindow(found.window(), isEnabled ? TRUE : FALSE);
    }
}

bool Win32WindowSystem::isItemEnabled(WindowHandle dialog, std::uint16_t item) {
    const DialogItem found(dialog, item);
    return found && !found.hasStyle(WS_DISABLED);
}

void Win32WindowSystem::focusItem(WindowHandle dialog, std::uint16_t item) {
    const DialogItem found(dialog, item);
    if (found && found.hasStyle(WS_VISIBLE) && !found.hasStyle(WS_DISABLED)) {
        const Dialog::Silence silence(found.dialog()); // of a radio button, it would click
        SendMessageW(found.dialog().window(), WM_NEXTDLGCTL,
                     reinterpret_cast<WPARAM>(found.window()), TRUE);
    }
}

void Win32WindowSystem::removeItem(WindowHandle dialog, std::uint16_t item) {
    if (const DialogItem found(dialog, item); found) {
        const Dialog::Silence silence(found.dialog());
        found.leave();
        found.dialog().removeItem(item);
    }
}

void Win32WindowSystem::setText(WindowHandle dialog, std::uint16_t item, std::u16string_view text) {
    const DialogItem found(dialog, item);
    if (!found) {
        return;
    }
    const bool isNewText = found.kind() == ItemKind::edit && getWindowText(found.window()) != text;
    {
        const Dialog::Silence silence(found.dialog());
        setWindowText(found.window(), text);
    }
    // Items of several lines don't tell of this by themselves, and others tell of no change too.
    if (isNewText) {
        found.dialog().command(item, notification::editChanged);
    }
}

std::u16string Win32WindowSystem::getText(WindowHandle dialog, std::uint16_t item) {
    const DialogItem found(dialog, item);
    return found ? getWindowText(found.window()) : std::u16string();
}

void Win32WindowSystem::setToolTip(WindowHandle dialog, std::uint16_t item,
                                   std::u16string_view text) {
    if (const DialogItem found(dialog, item); found) {
        found.dialog().setToolTip(found.window(), text);
    }
}

void Win32WindowSystem::setProperty(WindowHandle dialog, std::uint16_t item,
                                    std::u16string_view name, std::uintptr_t value) {
    if (const DialogItem found(dialog, item); found) {
        found.dialog().setProperty(found.window(), name, value);
    }
}

void Win32WindowSystem::setDefaultButton(WindowHandle dialog, std::uint16_t item) {
    const DialogItem found(dialog, item, {ItemKind::button});
    if (!found || getButtonType(found.window()) > BS_DEFPUSHBUTTON) {
        return;
    }
    for (const Dialog::Item& other : found.dialog().items()) {
        if (other.kind == ItemKind::button && getButtonType(other.window) == BS_DEFPUSHBUTTON) {
            SendMessageW(other.window, BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
        }
    }
    SendMessageW(found.window(), BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
    SendMessageW(found.dialog().window(), DM_SETDEFID, item, 0);
}

void Win32WindowSystem::setChecked(WindowHandle dialog, std::uint16_t item, bool isChecked) {
    DialogItem(dialog, item, {ItemKind::button})
        .send(BM_SETCHECK, isChecked ? BST_CHECKED : BST_UNCHECKED);
}

bool Win32WindowSystem::isChecked(WindowHandle dialog, std::uint16_t item) {
    return DialogItem(dialog, item, {ItemKind::button}).send(BM_GETCHECK) == BST_CHECKED;
}

void Win32WindowSystem::setRange(WindowHandle dialog, std::uint16_t item, std::int32_t lower,
                                 std::int32_t upper) {
    const DialogItem found(dialog, item, ranges);
    if (!found) {
        return;
    }
    switch (found.kind()) {
    case ItemKind::slider:
        found.send(TBM_SETRANGEMIN, FALSE, lower);
        found.send(TBM_SETRANGEMAX, TRUE, upper);
        break;
    case ItemKind::spin:
        found.send(UDM_SETRANGE32, static_cast<WPARAM>(lower), upper);
        break;
    default:
        SetScrollRange(found.window(), SB_CTL, lower, upper, TRUE);
        break;
    }
}

void Win32WindowSystem::setPosition(WindowHandle dialog, std::uint16_t item,
                                    std::int32_t position) {
    const DialogItem found(dialog, item, ranges);
    if (!found) {
        return;
    }
    switch (found.kind()) {
    case ItemKind::slider:
        found.send(TBM_SETPOS, TRUE, position);
        break;
    case ItemKind::spin:
        found.send(UDM_SETPOS32, 0, position);
        break;
    default:
        SetScrollPos(found.window(), SB_CTL, position, TRUE);
        break;
    }
}

std::int32_t Win32WindowSystem::getPosition(WindowHandle dialog, std::uint16_t item) {
    const DialogItem found(dialog, item, ranges);
    if (!found) {
        return 0;
    }
    switch (found.kind()) {
    case ItemKind::slider:
        return static_cast<std::int32_t>(found.send(TBM_GETPOS));
    case ItemKind::spin:
        return static_cast<std::int32_t>(found.send(UDM_GETPOS32));
    default:
        return GetScrollPos(found.window(), SB_CTL);
    }
}

void Win32WindowSystem::setBitmap(WindowHandle dialog, std::uint16_t item, std::uint32_t bitmap,
                                  bool clearsGround) {
    const DialogItem found(dialog, item, {ItemKind::label});
    if (!found) {
        return;
    }
    if (SubclassedItem::of(found.window()) == nullptr) {
        SubclassedItem::attach(std::make_unique<Picture>(found.window()));
    }
    if (auto* const picture = static_cast<Picture*>(SubclassedItem::of(found.window()))) {
        picture->setBitmap(found.dialog().resources(), bitmap, clearsGround);
    }
}

void Win32WindowSystem::drawBitmap(WindowHandle dialog, const DrawRequest& request,
                                   std::uint32_t bitmap) {
    const auto found = Dialog::of(dialog);
    if (found != nullptr && request.canvas != nullptr) {
        const auto& canvas = *static_cast<const DRAWITEMSTRUCT*>(request.canvas);
        const RECT& place = canvas.rcItem;
        const MaskedBitmap picture(createBitmap(found->resources(), bitmap));
        picture.draw(canvas.hDC, (place.left + place.right - picture.size().cx) / 2,
                     (place.top + place.bottom - picture.size().cy) / 2);
    }
}

} // namespace zent::platform::win32
