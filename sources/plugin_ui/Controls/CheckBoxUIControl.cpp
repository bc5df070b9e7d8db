#include "plugin_ui/Controls/CheckBoxUIControl.h"

#include "ocore/Resources/ResourceLibrary.h"

namespace zent {

void CheckBoxUIControl::setChecked(bool isChecked) {
    m_isChecked = isChecked;
    displayControl();
}

void CheckBoxUIControl::setCaptionId(std::uint32_t stringId) {
    m_captionId = stringId;
    displayCaption();
}

void CheckBoxUIControl::showValue() { item().setChecked(m_isChecked); }

void CheckBoxUIControl::displayCaption() {
    if (hasWindow() && m_captionId != 0) {
        item().setText(ResourceLibrary().getString(m_captionId));
    }
}

bool CheckBoxUIControl::processControlMessage(const DialogMessage& message,
                                              std::intptr_t& /*result*/) {
    if (!message.isCommand(getItemId(), platform::notification::clicked)) {
        return false;
    }
    const bool isChecked = item().isChecked();
    if (isChecked != m_isChecked) {
        m_isChecked = isChecked;
        notifyObservers();
    }
    return true;
}

} // namespace zent
