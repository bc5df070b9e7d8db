#include "plugin_ui/Controls/ComboBoxUIControl.h"

#include "plugin_ui/Reports/CurrentWindowSystem.h"

namespace zent {

bool ComboBoxUIControl::processControlMessage(const DialogMessage& message,
                                              std::intptr_t& /*result*/) {
    if (message.isCommand(getItem(), platform::notification::comboSelected)) {
        if (takeSelection() || m_notifyAlways) {
            notifyObservers();
        }
        return true;
    }
    if (message.isCommand(getItem(), platform::notification::comboEdited)) {
        setText(CXString(windowSystem().getText(getWindow(), getItem())));
        notifyObservers();
        return true;
    }
    return false;
}

} // namespace zent
