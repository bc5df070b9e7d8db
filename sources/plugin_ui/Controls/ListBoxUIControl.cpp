#include "plugin_ui/Controls/ListBoxUIControl.h"

namespace zent {

bool ListBoxUIControl::processControlMessage(const DialogMessage& message,
                                             std::intptr_t& /*result*/) {
    if (!message.isCommand(getItemId(), platform::notification::listSelected)) {
        return false;
    }
    takeSelection();
    notifyObservers();
    return true;
}

} // namespace zent
