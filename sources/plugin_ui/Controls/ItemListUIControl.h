#pragma once

#include <optional>

#include "plugin_ui/Controls/UIControl.h"

namespace zent {

/// A list of texts with a value each, of which the user chooses one. It is what combo boxes and
/// list boxes have in common. The list is kept here, for features fill it before there is an item.
class ItemListUIControl : public UIControlOf<platform::ChoiceItem> {
public:
    void clear();
    /// Inserts at an index; -1 or 0 appends.
    void addItem(const CXString& text, std::uint32_t value, std::int32_t position = -1);
    /// The index of the first item of that value, or -1.
    std::int32_t findValue(std::uint32_t value) const;
    void setItemText(std::int32_t index, const CXString& text);
    const CXString& getItemText(std::int32_t index) const;
    std::int32_t getItemCount() const { return static_cast<std::int32_t>(m_list.size()); }
    /// Orders the items by their texts.
    void sort();

    /// Chooses the item of that value, or none if there is no such item. The value is kept even so.
    void select(std::uint32_t value);
    std::uint32_t getSelectedValue() const { return m_selectedValue; }
    /// Gives the text of the item that the user has chosen last.
    const CXString& getText() const { return m_text; }

    void setControlCallBack() override;

protected:
    /// `label` may be 0.
    ItemListUIControl(std::uint16_t item, std::uint16_t label);

    void showValue() override;

    /// Takes over what the user has chosen, and says whether it is another value.
    bool takeSelection();
    void setText(const CXString& text) { m_text = text; }

private:
    struct Entry {
        CXString text;
        std::uint32_t value;
    };

    void showEntries();

    std::vector<Entry> m_list;
    std::uint32_t m_selectedValue = 0;
    CXString m_text;
};

} // namespace zent
