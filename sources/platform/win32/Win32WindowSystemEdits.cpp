// Edit items, and the edit part of combo boxes.

#include "platform/win32/Dialog.h"
#include "platform/win32/DialogItem.h"
#include "platform/win32/EditFilter.h"
#include "platform/win32/Win32WindowSystem.h"
#include "platform/win32/WindowText.h"

namespace zent::platform::win32 {

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

} // namespace

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

} // namespace zent::platform::win32
