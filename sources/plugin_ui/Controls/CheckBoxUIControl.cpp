#include "plugin_ui/Controls/CheckBoxUIControl.h"

#include "ocore/Resources/ResourceLibrary.h"
#include "plugin_ui/Reports/CurrentWindowSystem.h"

namespace zent {

void CheckBoxUIControl::setChecked(bool isChecked) {
    m_isChecked = isChecked;
    displayControl();
}

void CheckBoxUIControl::setCaptionId(std::uint32_t stringId) {
    m_captionId = stringId;
    displayCaption();
}

void CheckBoxUIControl::displayControl() {
    if (hasWindow()) {
        windowSystem().setChecked(getWindow(), getItem(), m_isChecked);
    }
}

void CheckBoxUIControl::displayCaption() {
    if (hasWindow() && m_captionId != 0) {
        windowSystem().setText(getWindow(), getItem(), ResourceLibrary().getString(m_captionId));
    }
}

bool CheckBoxUIControl::processControlMessage(const DialogMessage& message,
                                              std::intptr_t& /*result*/) {
    if (!message.isCommand(getItem(), platform::notification::clicked)) {
        return false;
    }
    const bool isChecked = windowSystem().isChecked(getWindow(), getItem());
    if (isChecked != m_isChecked) {
        m_isChecked = isChecked;
        notifyObservers();
    }
    return true;
}

} // namespace zent
