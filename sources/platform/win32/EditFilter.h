#pragma once

#include <string>
#include <string_view>

#include "platform/DialogItems.h"
#include "platform/win32/SubclassedItem.h"

namespace zent::platform::win32 {

/// Keeps out of an edit item what is typed or pasted beyond its limit, or against its filter, if it
/// has one.
class EditFilter final : public SubclassedItem {
public:
    explicit EditFilter(HWND edit) : SubclassedItem(edit) {}

    void setFilter(const CharacterFilter& filter) { m_filter = filter; }

protected:
    LRESULT process(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    bool hasStyle(LONG style) const;
    void type(char16_t unit, LPARAM key);
    void paste() const;
    std::u16string accept(std::u16string_view entered) const;

    CharacterFilter m_filter;
    char16_t m_highSurrogate = u'\0'; // waits for the other half of its character
};

} // namespace zent::platform::win32
