#pragma once

#include <initializer_list>

#include "plugin_ui/Controls/CharacterFilter.h"
#include "plugin_ui/Controls/UIControl.h"

namespace zent {

/// A box that takes a text, or shows one.
class TextBoxUIControl : public UIControlOf<platform::TextItem> {
public:
    /// `maximumLength` counts UTF-16 units.
    TextBoxUIControl(std::uint16_t edit, std::initializer_list<std::uint16_t> labels,
                     std::uint32_t maximumLength, FilterMode mode = FilterMode::all);

    /// Gives the text that was set until the user changes it, with its own line ends and length.
    const CXString& getText() const { return m_text; }
    void setText(const CXString& text);
    /// Limits what the user can enter; a text that is set may be longer.
    void setMaxLength(std::uint32_t length);
    std::uint32_t getMaxLength() const { return m_maxLength; }
    bool isTooLong() const { return m_text.view().size() > m_maxLength; }
    void setFilterMode(FilterMode mode) { m_filterMode = mode; }
    /// Makes a read-only box look like part of the page.
    void setTransparent(bool isTransparent) { m_isTransparent = isTransparent; }

    void setControlCallBack() override;
    bool processControlMessage(const DialogMessage& message, std::intptr_t& result) override;

protected:
    void showValue() override;

private:
    CXString m_text;
    std::uint32_t m_maxLength;
    FilterMode m_filterMode;
    bool m_isTransparent = false;
};

} // namespace zent
