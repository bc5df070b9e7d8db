// Combo boxes and list boxes, which differ in the numbers of their messages.

#include "platform/win32/Item.h"
#include "platform/win32/WideText.h"

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
// The answer of both for an index that isn't there, and the index that stands for none.
constexpr LRESULT noIndex = -1;
static_assert(CB_ERR == noIndex && LB_ERR == noIndex);

class ListItem final : public Item, public ChoiceItem {
public:
    ListItem(Dialog& dialog, HWND window)
        : Item(dialog, window), m_messages(kind() == ItemKind::comboBox ? ofComboBox : ofListBox) {}

    void clear() override { send(m_messages.clear); }
    std::int32_t add(std::u16string_view text, std::uintptr_t value,
                     std::int32_t position) override {
        return insert(position, text, static_cast<LPARAM>(value));
    }
    void removeEntry(std::int32_t index) override {
        if (hasIndex(index)) {
            send(m_messages.remove, static_cast<WPARAM>(index));
        }
    }
    std::int32_t getCount() const override {
        return static_cast<std::int32_t>(send(m_messages.count));
    }
    std::int32_t getSelected() const override {
        return isThere() ? static_cast<std::int32_t>(send(m_messages.getSelected)) : -1;
    }
    void select(std::int32_t index) override {
        send(m_messages.select, static_cast<WPARAM>(index));
    }
    std::u16string getEntryText(std::int32_t index) const override;
    void setEntryText(std::int32_t index, std::u16string_view text) override;
    std::uintptr_t getEntryValue(std::int32_t index) const override {
        return hasIndex(index) ? static_cast<std::uintptr_t>(
                                     send(m_messages.getValue, static_cast<WPARAM>(index)))
                               : 0;
    }

private:
    bool hasIndex(std::int32_t index) const { return index >= 0 && index < getCount(); }
    std::int32_t insert(std::int32_t position, std::u16string_view text, LPARAM value) const;

    const ListMessages& m_messages;
};

/// A list that sorts finds the place of what is appended.
std::int32_t ListItem::insert(std::int32_t position, std::u16string_view text, LPARAM value) const {
    const UINT message = position == noIndex ? m_messages.append : m_messages.insert;
    const LRESULT index =
        send(message, static_cast<WPARAM>(position), std::u16string(text).c_str());
    if (index >= 0) {
        send(m_messages.setValue, static_cast<WPARAM>(index), value);
    }
    return static_cast<std::int32_t>(index);
}

std::u16string ListItem::getEntryText(std::int32_t index) const {
    if (!hasIndex(index)) {
        return {};
    }
    const auto place = static_cast<WPARAM>(index);
    const LRESULT length = send(m_messages.textLength, place);
    std::u16string text(static_cast<std::size_t>(std::max<LRESULT>(length, 0)), u'\0');
    send(m_messages.getText, place, text.data());
    return text;
}

/// The system has no such operation: the text goes and comes back at its place.
void ListItem::setEntryText(std::int32_t index, std::u16string_view text) {
    if (!hasIndex(index)) {
        return;
    }
    const auto place = static_cast<WPARAM>(index);
    const std::int32_t selected = getSelected();
    const LRESULT value = send(m_messages.getValue, place);
    send(m_messages.remove, place);
    insert(index, text, value);
    if (selected == index) {
        select(index);
    }
}

} // namespace

std::unique_ptr<Item> makeChoice(Dialog& dialog, HWND window) {
    return std::make_unique<ListItem>(dialog, window);
}

} // namespace zent::platform::win32
