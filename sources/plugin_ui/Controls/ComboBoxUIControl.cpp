#include "plugin_ui/Controls/ComboBoxUIControl.h"

namespace zent {

bool ComboBoxUIControl::processControlMessage(const DialogMessage& message,
                                              std::intptr_t& /*result*/) {
    if (message.isCommand(getItemId(), platform::notification::comboSelected)) {
        if (takeSelection() || m_notifyAlways) {
            notifyObservers();
        }
        return true;
    }
    if (message.isCommand(getItemId(), platform::notification::comboEdited)) {
        setText(CXString(item().getText()));
        notifyObservers();
        return true;
    }
    return false;
}

} // namespace zent
