#include "plugin_ui/Controls/SliderUIControl.h"

#include "plugin_ui/Reports/CurrentWindowSystem.h"

namespace zent {

SliderUIControl::SliderUIControl(std::uint16_t trackBar,
                                 std::initializer_list<std::uint16_t> labels)
    : UIControl(trackBar) {
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

void SliderUIControl::setControlCallBack() {
    if (hasWindow()) {
        windowSystem().setRange(getWindow(), getItem(), m_lower, m_upper);
    }
}

void SliderUIControl::displayControl() {
    if (hasWindow()) {
        windowSystem().setPosition(getWindow(), getItem(), m_value);
    }
}

bool SliderUIControl::processControlMessage(const DialogMessage& message,
                                            std::intptr_t& /*result*/) {
    if (message.getMessage() != platform::event::horizontalScroll ||
        message.getLParam() != getItem()) {
        return false;
    }
    const std::int32_t position = windowSystem().getPosition(getWindow(), getItem());
    if (position != m_value) {
        m_value = position;
        notifyObservers();
    }
    return true;
}

} // namespace zent
