#pragma once

#include <initializer_list>

#include "plugin_ui/Controls/CharacterFilter.h"
#include "plugin_ui/Controls/UIControl.h"

namespace zent {

/// A box that takes a text, or shows one.
class TextBoxUIControl : public UIControl {
public:
    /// `maximumLength` in UTF-16 units.
    TextBoxUIControl(std::uint16_t edit, std::initializer_list<std::uint16_t> labels,
                     std::uint32_t maximumLength, FilterMode mode = FilterMode::all);

    const CXString& getText() const { return m_text; }
    void setText(const CXString& text);
    void setMaxLength(std::uint32_t length);
    void setFilterMode(FilterMode mode) { m_filterMode = mode; }
    /// Makes a read-only box look like part of the page.
    void setTransparent(bool isTransparent) { m_isTransparent = isTransparent; }

    void displayControl() override;
    void setControlCallBack() override;
    bool processControlMessage(const DialogMessage& message, std::intptr_t& result) override;

private:
    std::uint16_t m_editId;
    CXString m_text;
    std::uint32_t m_maxLength;
    FilterMode m_filterMode;
    bool m_isTransparent = false;
};

} // namespace zent
