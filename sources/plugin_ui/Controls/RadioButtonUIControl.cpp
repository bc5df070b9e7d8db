#include "plugin_ui/Controls/RadioButtonUIControl.h"

#include <algorithm>

#include "plugin_ui/Reports/CurrentWindowSystem.h"

namespace zent {

void RadioButtonUIControl::setCheckedId(std::uint16_t item) {
    m_checkedId = item;
    displayControl();
}

void RadioButtonUIControl::displayControl() {
    if (!hasWindow()) {
        return;
    }
    platform::WindowSystem& system = windowSystem();
    for (const std::uint16_t button : getItemIds()) {
        system.setChecked(getWindow(), button, false);
    }
    if (m_checkedId != 0) {
        system.setChecked(getWindow(), m_checkedId, true);
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
    // A button is told of as clicked when the keyboard's focus reaches it, too.
    const auto checked = std::ranges::find_if(getItemIds(), [&](std::uint16_t button) {
        return windowSystem().isChecked(getWindow(), button);
    });
    if (checked != getItemIds().end() && *checked != m_checkedId) {
        m_checkedId = *checked;
        notifyObservers();
    }
    return true;
}

} // namespace zent
