#include "plugin_ui/Controls/SliderUIControl.h"

namespace zent {

SliderUIControl::SliderUIControl(std::uint16_t trackBar,
                                 std::initializer_list<std::uint16_t> labels)
    : UIControlOf(trackBar) {
    for (const std::uint16_t label : labels) {
        addItem(label);
    }
}

void SliderUIControl::setRange(std::int32_t lower, std::int32_t upper) {
    m_lower = lower;
    m_upper = upper;
    setControlCallBack();
}

void SliderUIControl::setValue(std::int32_t value) {
    m_value = value;
    displayControl();
}

void SliderUIControl::setControlCallBack() { item().setRange(m_lower, m_upper); }

void SliderUIControl::showValue() { item().setPosition(m_value); }

bool SliderUIControl::processControlMessage(const DialogMessage& message,
                                            std::intptr_t& /*result*/) {
    if (message.getMessage() != platform::event::horizontalScroll ||
        message.getLParam() != getItemId()) {
        return false;
    }
    const std::int32_t position = item().getPosition();
    if (position != m_value) {
        m_value = position;
        notifyObservers();
    }
    return true;
}

} // namespace zent
