#pragma once

#include <initializer_list>

#include "plugin_ui/Controls/UIControl.h"

namespace zent {

/// A track bar, which the user drags to a whole number.
class SliderUIControl : public UIControlOf<platform::RangeItem> {
public:
    explicit SliderUIControl(std::uint16_t trackBar,
                             std::initializer_list<std::uint16_t> labels = {});

    void setRange(std::int32_t lower, std::int32_t upper);
    std::int32_t getValue() const { return m_value; }
    void setValue(std::int32_t value);

    void setControlCallBack() override;
    bool processControlMessage(const DialogMessage& message, std::intptr_t& result) override;

protected:
    void showValue() override;

private:
    std::int32_t m_lower = 0;
    std::int32_t m_upper = 100;
    std::int32_t m_value = 0;
};

} // namespace zent
