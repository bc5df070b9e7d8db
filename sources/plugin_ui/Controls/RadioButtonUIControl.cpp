#include "plugin_ui/Controls/RadioButtonUIControl.h"

#include <algorithm>

namespace zent {

void RadioButtonUIControl::setCheckedId(std::uint16_t item) {
    m_checkedId = item;
    displayControl();
}

void RadioButtonUIControl::bindItems(const platform::Dialog& dialog) {
    UIControl::bindItems(dialog);
    m_buttons.clear();
    for (const std::uint16_t id : getItemIds()) {
        m_buttons.push_back(&dialog.item<platform::ButtonItem>(id));
    }
}

void RadioButtonUIControl::showValue() {
    for (platform::ButtonItem* const button : m_buttons) {
        button->setChecked(false);
    }
    for (platform::ButtonItem* const button : m_buttons) {
        if (button->isThere() && button->getId() == m_checkedId) {
            button->setChecked(true);
        }
    }
}

bool RadioButtonUIControl::isClickOnButton(const DialogMessage& message) const {
    return std::ranges::any_of(getItemIds(), [&](std::uint16_t button) {
        return message.isCommand(button, platform::notification::clicked);
    });
}

bool RadioButtonUIControl::processControlMessage(const DialogMessage& message,
                                                 std::intptr_t& /*result*/) {
    if (!isClickOnButton(message)) {
        return false;
    }
    // A button counts as clicked when the keyboard's focus reaches it, too.
    const auto checked = std::ranges::find_if(
        m_buttons, [](const platform::ButtonItem* button) { return button->isChecked(); });
    if (checked != m_buttons.end() && (*checked)->getId() != m_checkedId) {
        m_checkedId = (*checked)->getId();
        notifyObservers();
    }
    return true;
}

} // namespace zent
