#pragma once

#include <initializer_list>
#include <optional>

#include "plugin_ui/Controls/NumberText.h"
#include "plugin_ui/Controls/UIControl.h"

namespace zent {

/// A box that takes a number, and a spin that steps it if there is one.
class NumberBoxUIControl : public UIControlOf<platform::TextItem> {
public:
    /// `spin` may be 0.
    explicit NumberBoxUIControl(std::uint16_t edit, std::uint16_t spin = 0,
                                std::initializer_list<std::uint16_t> labels = {});

    void setNumberType(NumberType type) { m_numberType = type; }
    /// Counts characters, with sign and point.
    void setMaxLength(std::uint16_t length);
    void setBounds(std::int32_t lower, std::int32_t upper);
    void setBounds(double lower, double upper);
    /// Counts digits after the point; a step changes the last of them.
    void setDecimals(std::uint32_t decimals) { m_decimals = decimals; }
    /// Whether an integer beyond the bounds becomes the bound when the user leaves the box.
    void setClampOnLeave(bool clamps) { m_clampOnLeave = clamps; }

    double getValue() const { return m_value; }
    std::int32_t getInteger() const;
    void setValue(double value);
    /// An empty box has the value 0.
    bool isEmpty() const { return m_isEmpty; }
    void setEmpty();

    void setControlCallBack() override;
    bool processControlMessage(const DialogMessage& message, std::intptr_t& result) override;

protected:
    void showValue() override;

private:
    void handleChange();
    void handleLeave();
    void handleStep(const platform::Notification& step);
    double readNumber() const;
    void storeValue(double value, bool isEmpty);

    std::uint16_t m_spinId;
    NumberType m_numberType = NumberType::signedInteger;
    std::uint16_t m_maxLength = 10;
    double m_value = 0;
    bool m_isEmpty = false;
    std::optional<NumberBounds<std::int32_t>> m_integerBounds;
    std::optional<NumberBounds<double>> m_decimalBounds;
    std::uint32_t m_decimals = 1;
    bool m_clampOnLeave = false;
};

} // namespace zent
