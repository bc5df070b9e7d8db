#include "plugin_ui/Controls/ItemListUIControl.h"

#include <algorithm>

namespace zent {

ItemListUIControl::ItemListUIControl(std::uint16_t item, std::uint16_t label) : UIControlOf(item) {
    UIControl::addItem(label);
}

void ItemListUIControl::clear() {
    m_list.clear();
    item().clear();
}

void ItemListUIControl::addItem(const CXString& text, std::uint32_t value, std::int32_t position) {
    const bool isInside = position > 0 && position < getItemCount();
    m_list.insert(isInside ? m_list.begin() + position : m_list.end(), {text, value});
    item().add(text, value, isInside ? position : -1);
}

std::int32_t ItemListUIControl::findValue(std::uint32_t value) const {
    const auto found = std::ranges::find(m_list, value, &Entry::value);
    return found == m_list.end() ? -1 : static_cast<std::int32_t>(found - m_list.begin());
}

void ItemListUIControl::setItemText(std::int32_t index, const CXString& text) {
    m_list.at(static_cast<std::size_t>(index)).text = text;
    item().setEntryText(index, text);
    displayControl(); // a toolkit that puts a new item in the place has lost the choice
}

const CXString& ItemListUIControl::getItemText(std::int32_t index) const {
    return m_list.at(static_cast<std::size_t>(index)).text;
}

void ItemListUIControl::sort() {
    std::ranges::stable_sort(m_list, {}, &Entry::text);
    showEntries();
    displayControl();
}

void ItemListUIControl::select(std::uint32_t value) {
    m_selectedValue = value;
    displayControl();
}

void ItemListUIControl::showValue() { item().select(findValue(m_selectedValue)); }

void ItemListUIControl::setControlCallBack() { showEntries(); }

void ItemListUIControl::showEntries() {
    item().clear();
    for (const Entry& entry : m_list) {
        item().add(entry.text, entry.value, -1);
    }
}

bool ItemListUIControl::takeSelection() {
    const std::int32_t index = item().getSelected();
    if (index < 0 || index >= getItemCount()) {
        return false;
    }
    const Entry& chosen = m_list[static_cast<std::size_t>(index)];
    const bool isOther = chosen.value != m_selectedValue;
    m_selectedValue = chosen.value;
    m_text = chosen.text;
    return isOther;
}

} // namespace zent
