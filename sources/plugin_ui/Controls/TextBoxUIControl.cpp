#include "plugin_ui/Controls/TextBoxUIControl.h"

#include "ocore/Faults/Exceptions.h"
#include "plugin_ui/Reports/CurrentWindowSystem.h"

namespace zent {

TextBoxUIControl::TextBoxUIControl(std::uint16_t edit, std::initializer_list<std::uint16_t> labels,
                                   std::uint32_t maximumLength, FilterMode mode)
    : UIControl(edit), m_editId(edit), m_maxLength(maximumLength), m_filterMode(mode) {
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
    if (hasWindow()) {
        windowSystem().setTextLimit(getWindow(), m_editId, m_maxLength);
    }
}

void TextBoxUIControl::displayControl() {
    if (hasWindow()) {
        const Showing showing(*this);
        windowSystem().setText(getWindow(), m_editId, m_text);
    }
}

void TextBoxUIControl::setControlCallBack() {
    platform::WindowSystem& system = windowSystem();
    if (!system.hasItem(getWindow(), m_editId)) {
        Raise<UnknownCaseException>{}(
            "TextBoxUIControl::setControlCallBack() Unknown Resource ID.\r\n");
    }
    system.setProperty(getWindow(), m_editId, u"SC_TYPE",
                       static_cast<std::uintptr_t>(m_filterMode));
    system.setTextLimit(getWindow(), m_editId, m_maxLength);
    const bool isFiltered = system.setCharacterFilter(
        getWindow(), m_editId,
        [this](std::u16string_view text, std::int32_t start, std::int32_t end, char16_t character) {
            return acceptsTextCharacter(m_filterMode, {text, start, end, m_maxLength}, character);
        });
    if (!isFiltered) {
        Raise<UnknownCaseException>{}("TextBoxUIControl::setControlCallBack() Unknown ANL value "
                                      "for disposition.\r\n");
    }
    if (m_isTransparent) {
        system.setTransparent(getWindow(), m_editId);
    }
}

bool TextBoxUIControl::processControlMessage(const DialogMessage& message,
                                             std::intptr_t& /*result*/) {
    if (!message.isCommand(m_editId, platform::notification::editChanged)) {
        return false;
    }
    if (!isShowing()) {
        m_text = windowSystem().getText(getWindow(), m_editId);
        notifyObservers();
    }
    return true;
}

} // namespace zent
