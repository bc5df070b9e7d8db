// Combo boxes and list boxes, which differ in the numbers of their messages.

#include "platform/win32/DialogItem.h"
#include "platform/win32/WideText.h"
#include "platform/win32/Win32WindowSystem.h"

namespace zent::platform::win32 {

namespace {

struct ListMessages {
    UINT clear;
    UINT append;
    UINT insert;
    UINT remove;
    UINT count;
    UINT getSelected;
    UINT select;
    UINT textLength;
    UINT getText;
    UINT getValue;
    UINT setValue;
};

constexpr ListMessages ofComboBox = {
    CB_RESETCONTENT, CB_ADDSTRING,    CB_INSERTSTRING, CB_DELETESTRING, CB_GETCOUNT,   CB_GETCURSEL,
    CB_SETCURSEL,    CB_GETLBTEXTLEN, CB_GETLBTEXT,    CB_GETITEMDATA,  CB_SETITEMDATA};
constexpr ListMessages ofListBox = {
    LB_RESETCONTENT, LB_ADDSTRING,  LB_INSERTSTRING, LB_DELETESTRING, LB_GETCOUNT,   LB_GETCURSEL,
    LB_SETCURSEL,    LB_GETTEXTLEN, LB_GETTEXT,      LB_GETITEMDATA,  LB_SETITEMDATA};
// What both say of an index that isn't there, and what stands for none.
constexpr LRESULT noIndex = -1;
static_assert(CB_ERR == noIndex && LB_ERR == noIndex);

class ListItem : public DialogItem {
public:
    ListItem(WindowHandle dialog, std::uint16_t id)
        : DialogItem(dialog, id, {ItemKind::comboBox, ItemKind::listBox}),
          messages(kind() == ItemKind::comboBox ? ofComboBox : ofListBox) {}

    bool hasIndex(std::int32_t index) const { return index >= 0 && index < send(messages.count); }

    std::int32_t insert(std::int32_t position, std::u16string_view text, LPARAM value) const {
        // A list that sorts finds the place of what is appended.
        const UINT message = position == noIndex ? messages.append : messages.insert;
        const LRESULT index =
            send(message, static_cast<WPARAM>(position), std::u16string(text).c_str());
        if (index >= 0) {
            send(messages.setValue, static_cast<WPARAM>(index), value);
        }
        return static_cast<std::int32_t>(index);
    }

    const ListMessages& messages;
};

} // namespace

void Win32WindowSystem::clearList(WindowHandle dialog, std::uint16_t item) {
    const ListItem list(dialog, item);
    list.send(list.messages.clear);
}

std::int32_t Win32WindowSystem::addToList(WindowHandle dialog, std::uint16_t item,
                                          std::u16string_view text, std::uintptr_t value,
                                          std::int32_t position) {
    const ListItem list(dialog, item);
    return list ? list.insert(position, text, static_cast<LPARAM>(value)) : -1;
}

void Win32WindowSystem::removeFromList(WindowHandle dialog, std::uint16_t item,
                                       std::int32_t index) {
    const ListItem list(dialog, item);
    if (list.hasIndex(index)) {
        list.send(list.messages.remove, static_cast<WPARAM>(index));
    }
}

std::int32_t Win32WindowSystem::getListCount(WindowHandle dialog, std::uint16_t item) {
    const ListItem list(dialog, item);
    return static_cast<std::int32_t>(list.send(list.messages.count));
}

std::int32_t Win32WindowSystem::getSelected(WindowHandle dialog, std::uint16_t item) {
    const ListItem list(dialog, item);
    return list ? static_cast<std::int32_t>(list.send(list.messages.getSelected)) : -1;
}

void Win32WindowSystem::select(WindowHandle dialog, std::uint16_t item, std::int32_t index) {
    const ListItem list(dialog, item);
    list.send(list.messages.select, static_cast<WPARAM>(index));
}

std::u16string Win32WindowSystem::getListText(WindowHandle dialog, std::uint16_t item,
                                              std::int32_t index) {
    const ListItem list(dialog, item);
    if (!list.hasIndex(index)) {
        return {};
    }
    const auto place = static_cast<WPARAM>(index);
    const LRESULT length = list.send(list.messages.textLength, place);
    std::u16string text(static_cast<std::size_t>(std::max<LRESULT>(length, 0)), u'\0');
    list.send(list.messages.getText, place, text.data());
    return text;
}

/// The system has no such operation: the text goes and comes back at its place.
void Win32WindowSystem::setListText(WindowHandle dialog, std::uint16_t item, std::int32_t index,
                                    std::u16string_view text) {
    const ListItem list(dialog, item);
    if (!list.hasIndex(index)) {
        return;
    }
    const auto place = static_cast<WPARAM>(index);
    const LRESULT selected = list.send(list.messages.getSelected);
    const LRESULT value = list.send(list.messages.getValue, place);
    list.send(list.messages.remove, place);
    list.insert(index, text, value);
    if (selected == index) {
        list.send(list.messages.select, place);
    }
}

std::uintptr_t Win32WindowSystem::getListValue(WindowHandle dialog, std::uint16_t item,
                                               std::int32_t index) {
    const ListItem list(dialog, item);
    return list.hasIndex(index) ? static_cast<std::uintptr_t>(
                                      list.send(list.messages.getValue, static_cast<WPARAM>(index)))
                                : 0;
}

} // namespace zent::platform::win32
