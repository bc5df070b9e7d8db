// Edit items, and the edit part of combo boxes.

#include <algorithm>
#include <limits>
#include <string>

#include "platform/win32/DialogItem.h"
#include "platform/win32/EditFilter.h"
#include "platform/win32/Win32WindowSystem.h"
#include "platform/win32/WindowText.h"
#include "platform/win32/WindowsDialog.h"

namespace zent::platform {

namespace {

constexpr std::initializer_list<ItemKind> edits = {ItemKind::edit, ItemKind::comboBox};

/// The window that takes the text; null if there is none.
HWND getEditPart(const DialogItem& item) {
    return item.kind() == ItemKind::comboBox
               ? FindWindowExW(item.window(), nullptr, L"Edit", nullptr)
               : item.window();
}

/// What stands before an edit item's procedure; null if the system refuses.
EditFilter* findOrAttachFilter(HWND edit) {
    if (SubclassedItem::of(edit) == nullptr) {
        SubclassedItem::attach(std::make_unique<EditFilter>(edit));
    }
    return static_cast<EditFilter*>(SubclassedItem::of(edit));
}

/// The number that a text begins with, 0 if it is none or lies beyond a limit.
std::int64_t parseNumber(std::u16string_view text, bool isSigned) {
    const std::size_t start = std::min(text.find_first_not_of(u" \t"), text.size());
    text.remove_prefix(start);
    const bool isNegative = isSigned && text.starts_with(u'-');
    text.remove_prefix(isNegative ? 1 : 0);
    const std::int64_t limit =
        isSigned ? std::numeric_limits<std::int32_t>::max() + std::int64_t{isNegative}
                 : std::int64_t{std::numeric_limits<std::uint32_t>::max()};
    std::int64_t number = 0;
    for (const char16_t digit : text.substr(0, text.find_first_not_of(u"0123456789"))) {
        number = number * 10 + (digit - u'0');
        if (number > limit) {
            return 0;
        }
    }
    return isNegative ? -number : number;
}

} // namespace

void Win32WindowSystem::setNumber(WindowHandle dialog, std::uint16_t item, std::int32_t number,
                                  bool isSigned) {
    if (DialogItem(dialog, item, edits)) {
        const std::string digits =
            isSigned ? std::to_string(number) : std::to_string(static_cast<std::uint32_t>(number));
        setText(dialog, item, std::u16string(digits.begin(), digits.end()));
    }
}

std::int32_t Win32WindowSystem::getNumber(WindowHandle dialog, std::uint16_t item, bool isSigned) {
    const DialogItem found(dialog, item, edits);
    return found ? static_cast<std::int32_t>(parseNumber(getWindowText(found.window()), isSigned))
                 : 0;
}

void Win32WindowSystem::setTextLimit(WindowHandle dialog, std::uint16_t item, std::uint32_t units) {
    if (const DialogItem found(dialog, item, edits); found) {
        const HWND edit = getEditPart(found);
        SendMessageW(edit, EM_SETLIMITTEXT, units, 0);
        findOrAttachFilter(edit); // by itself the item would cut a character of two units in half
        found.dialog().setProperty(found.window(), u"SC_MAX", units);
    }
}

bool Win32WindowSystem::setCharacterFilter(WindowHandle dialog, std::uint16_t item,
                                           CharacterFilter filter) {
    const DialogItem found(dialog, item, edits);
    const HWND edit = found ? getEditPart(found) : nullptr;
    EditFilter* const present = edit != nullptr ? findOrAttachFilter(edit) : nullptr;
    if (present != nullptr) {
        present->setFilter(std::move(filter));
    }
    return edit == nullptr || present != nullptr;
}

void Win32WindowSystem::selectText(WindowHandle dialog, std::uint16_t item, std::int32_t start,
                                   std::int32_t end) {
    if (const DialogItem found(dialog, item, edits); found) {
        SendMessageW(getEditPart(found), EM_SETSEL, static_cast<WPARAM>(start), end);
    }
}

void Win32WindowSystem::setTransparent(WindowHandle dialog, std::uint16_t item) {
    if (const DialogItem found(dialog, item, {ItemKind::edit}); found) {
        found.dialog().setTransparent(found.window());
        InvalidateRect(found.window(), nullptr, TRUE);
    }
}

} // namespace zent::platform
