#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "platform/WindowSystem.h"
#include "platform/win32/SubclassedItem.h"

namespace zent::platform {

/// Asks a filter for each character that is typed into an edit item, or pasted.
class EditFilter final : public SubclassedItem {
public:
    EditFilter(HWND edit, CharacterFilter filter)
        : SubclassedItem(edit), m_filter(std::move(filter)) {}

    void setFilter(CharacterFilter filter) { m_filter = std::move(filter); }

protected:
    LRESULT process(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    /// Places in the text, [start, end).
    struct Selection {
        DWORD start = 0;
        DWORD end = 0;
    };
    Selection getSelection() const;
    bool hasStyle(LONG style) const;
    bool accepts(std::u16string_view text, Selection selection, char16_t character) const;
    bool acceptsTyped(char16_t character) const;
    void paste() const;
    std::u16string pick(std::u16string_view pasted) const;

    CharacterFilter m_filter;
};

} // namespace zent::platform
