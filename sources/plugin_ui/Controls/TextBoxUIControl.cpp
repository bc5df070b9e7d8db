#include "plugin_ui/Controls/TextBoxUIControl.h"

#include "ocore/Faults/Exceptions.h"

namespace zent {

TextBoxUIControl::TextBoxUIControl(std::uint16_t edit, std::initializer_list<std::uint16_t> labels,
                                   std::uint32_t maximumLength, FilterMode mode)
    : UIControlOf(edit), m_maxLength(maximumLength), m_filterMode(mode) {
    for (const std::uint16_t label : labels) {
        addItem(label);
    }
}

void TextBoxUIControl::setText(const CXString& text) {
    m_text = text;
    displayControl();
}

void TextBoxUIControl::setMaxLength(std::uint32_t length) {
    m_maxLength = length;
    item().setLimit(m_maxLength);
}

// An edit item may show less than the text: it counts line ends in its own way. So the text isn't
// read back before the user has changed it.
void TextBoxUIControl::showValue() { item().setText(m_text); }

void TextBoxUIControl::setControlCallBack() {
    if (!item().isThere()) {
        Raise<UnknownCaseException>{}(
            "TextBoxUIControl::setControlCallBack() Unknown Resource ID.\r\n");
    }
    item().setProperty(u"SC_TYPE", static_cast<std::uintptr_t>(m_filterMode));
    item().setLimit(m_maxLength);
    const bool isFiltered = item().setFilter(
        [this](std::u16string_view text, std::int32_t start, std::int32_t end, char16_t character) {
        return acceptsTextCharacter(m_filterMode, {text, start, end, m_maxLength}, character);
    });
    if (!isFiltered) {
        Raise<UnknownCaseException>{}("TextBoxUIControl::setControlCallBack() Unknown ANL value "
                                      "for disposition.\r\n");
    }
    if (m_isTransparent) {
        item().setTransparent();
    }
}

bool TextBoxUIControl::processControlMessage(const DialogMessage& message,
                                             std::intptr_t& /*result*/) {
    if (!message.isCommand(getItemId(), platform::notification::editChanged)) {
        return false;
    }
    m_text = item().getText();
    notifyObservers();
    return true;
}

} // namespace zent
