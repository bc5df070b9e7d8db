#include "plugin_ui/Controls/NumberBoxUIControl.h"

#include <algorithm>
#include <limits>

#include "ocore/Faults/Exceptions.h"
#include "plugin_ui/Controls/CharacterFilter.h"

namespace zent {

namespace {

template <typename T>
const T* addressOf(const std::optional<T>& value) {
    return value ? &*value : nullptr;
}

} // namespace

NumberBoxUIControl::NumberBoxUIControl(std::uint16_t edit, std::uint16_t spin,
                                       std::initializer_list<std::uint16_t> labels)
    : UIControlOf(edit), m_spinId(spin) {
    addItem(spin);
    for (const std::uint16_t label : labels) {
        addItem(label);
    }
}

void NumberBoxUIControl::setMaxLength(std::uint16_t length) {
    m_maxLength = length;
    item().setLimit(m_maxLength);
}

void NumberBoxUIControl::setBounds(std::int32_t lower, std::int32_t upper) {
    m_integerBounds = {lower, upper};
}

void NumberBoxUIControl::setBounds(double lower, double upper) { m_decimalBounds = {lower, upper}; }

std::int32_t NumberBoxUIControl::getInteger() const {
    constexpr double lowest = std::numeric_limits<std::int32_t>::min();
    constexpr double highest = std::numeric_limits<std::uint32_t>::max();
    // An unsigned number keeps its 32 bits on the way through 64.
    return static_cast<std::int32_t>(
        static_cast<std::int64_t>(std::clamp(m_value, lowest, highest)));
}

void NumberBoxUIControl::setValue(double value) {
    m_value = value;
    m_isEmpty = false;
    displayControl();
}

void NumberBoxUIControl::setEmpty() {
    m_value = 0;
    m_isEmpty = true;
    displayControl();
}

void NumberBoxUIControl::showValue() {
    if (!hasWindow()) {
        return;
    }
    if (m_isEmpty) {
        item().setText(u"");
        return;
    }
    switch (m_numberType) {
    case NumberType::unsignedInteger:
        item().setText(CXString::Format(u"%u", getInteger()));
        return;
    case NumberType::decimal:
        item().setText(formatDecimal(m_value, m_decimals));
        return;
    case NumberType::signedInteger:
        item().setText(CXString::Format(u"%d", getInteger()));
        return;
    }
    Raise<UnknownCaseException>{}(
        "NumberBoxUIControl::displayControl() Unknown NumberBoxType.\r\n");
}

void NumberBoxUIControl::setControlCallBack() {
    if (!item().isThere()) {
        Raise<UnknownCaseException>{}(
            "NumberBoxUIControl::setControlCallBack() Unknown Resource ID.\r\n");
    }
    item().setProperty(u"SC_TYPE", static_cast<std::uintptr_t>(m_numberType));
    item().setLimit(m_maxLength);
    const bool isFiltered = item().setFilter(
        [this](std::u16string_view text, std::int32_t start, std::int32_t end, char16_t character) {
        return acceptsNumberCharacter(m_numberType, {text, start, end, m_maxLength}, character);
    });
    if (!isFiltered) {
        Raise<UnknownCaseException>{}("NumberBoxUIControl::setControlCallBack() Unknown ANL value "
                                      "for disposition.\r\n");
    }
}

bool NumberBoxUIControl::processControlMessage(const DialogMessage& message,
                                               std::intptr_t& result) {
    if (message.isCommand(getItemId(), platform::notification::editChanged)) {
        handleChange();
        return true;
    }
    if (message.isCommand(getItemId(), platform::notification::editLeft)) {
        handleLeave();
        return true;
    }
    if (m_spinId != 0 && message.getMessage() == platform::event::notify &&
        message.getItem() == m_spinId) {
        const auto& event = *message.getObject<const platform::Notification>();
        if (event.code == platform::notification::spinStep) {
            handleStep(event);
            result = 1; // the spin keeps its own position, which nobody looks at
            return true;
        }
    }
    return false;
}

double NumberBoxUIControl::readNumber() const {
    const std::u16string text = item().getText();
    switch (m_numberType) {
    case NumberType::unsignedInteger:
        return static_cast<double>(parseInteger(text, false));
    case NumberType::decimal:
        return parseDecimal(text);
    case NumberType::signedInteger:
        return static_cast<double>(parseInteger(text, true));
    }
    Raise<UnknownCaseException>{}(
        "NumberBoxUIControl::displayControl() Unknown ANL value for disposition.\r\n");
}

// The value is held beside the text: what is shown has fewer digits, and mustn't come back.
void NumberBoxUIControl::storeValue(double value, bool isEmpty) {
    if (value != m_value || isEmpty != m_isEmpty) {
        m_value = value;
        m_isEmpty = isEmpty;
        notifyObservers();
    }
}

void NumberBoxUIControl::handleChange() {
    const bool isEmpty = item().getText().empty();
    storeValue(isEmpty ? 0 : readNumber(), isEmpty);
}

void NumberBoxUIControl::handleLeave() {
    if (m_numberType != NumberType::signedInteger || !m_integerBounds || m_isEmpty ||
        !m_clampOnLeave) {
        return;
    }
    const auto [lower, upper] = *m_integerBounds;
    const std::int64_t number = parseInteger(item().getText(), true);
    if (number < lower || number > upper) {
        setValue(number < lower ? lower : upper);
        notifyObservers();
    }
}

void NumberBoxUIControl::handleStep(const platform::Notification& step) {
    const double shown = parseDecimal(item().getText());
    if (m_numberType == NumberType::decimal) {
        const double next = stepDecimal(shown, m_decimals, step.delta, addressOf(m_decimalBounds));
        item().setText(formatDecimal(next, m_decimals));
    } else {
        const std::int32_t next = stepInteger(shown, step.delta, addressOf(m_integerBounds));
        item().setText(CXString::Format(u"%d", next));
    }
    handleChange(); // the text has brought this about already if it has changed
}

} // namespace zent
