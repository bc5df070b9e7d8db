#include "plugin_ui/Controls/PushButtonUIControl.h"

#include "ocore/Resources/ResourceLibrary.h"

namespace zent {

PushButtonUIControl::PushButtonUIControl(std::uint16_t item, std::uint32_t toolTipId)
    : UIControl(item) {
    if (toolTipId != 0) {
        setToolTip(ResourceLibrary().getString(toolTipId));
    }
}

bool PushButtonUIControl::processControlMessage(const DialogMessage& message,
                                                std::intptr_t& /*result*/) {
    if (!message.isCommand(getItemId(), platform::notification::clicked)) {
        return false;
    }
    notifyObservers();
    return true;
}

bool PushButtonUIControl::onLock(const DialogMessage& message, std::intptr_t& result) {
    return processChildren(message, result);
}

} // namespace zent
