#include "plugin_ui/Features/NumberCheckBoxUIFeature.h"

namespace zent {

namespace {

constexpr std::uint32_t rangeTextCapacity = 50;

} // namespace

NumberCheckBoxUIFeature::NumberCheckBoxUIFeature(UIConfiguration& configuration,
                                                 const NumberRow& row, FeatureEnum parentFeature)
    : UIFeature(configuration, parentFeature, row.role), m_feature(row.feature),
      m_initialValue(row.initialValue), m_invertCheck(row.invertCheck),
      m_lastValue(row.initialValue) {
    if (row.numberId != 0) {
        m_numberBox = &makeChild<NumberBoxUIControl>(row.numberId, row.editSpinId);
        m_numberBox->attach(*this);
    }
    if (row.rangeTextId != 0) {
        m_rangeText = &makeChild<TextBoxUIControl>(
            row.rangeTextId, std::initializer_list<std::uint16_t>{}, rangeTextCapacity);
    }
    if (row.checkBoxId != 0 &&
        getCapabilities().isPrinterDefaultAvailable(m_feature, hasParentFeature())) {
        m_checkBox = &makeChild<CheckBoxUIControl>(row.checkBoxId);
        m_checkBox->attach(*this);
    }
}

bool NumberCheckBoxUIFeature::isSupported() { return isFeatureSupported(m_feature); }

void NumberCheckBoxUIFeature::initializeFeature() {
    if (m_numberBox == nullptr) {
        return;
    }
    getCapabilities().getFeatureCapabilities(m_feature, m_lowerBound, m_upperBound);
    if (m_rangeText != nullptr) {
        m_rangeText->setText(CXString::Format(u"(%d - %d)", m_lowerBound, m_upperBound));
    }
    m_numberBox->setNumberType(NumberType::signedInteger);
    m_numberBox->setBounds(m_lowerBound, m_upperBound);
    m_numberBox->setMaxLength(countDigits(m_upperBound));
    m_numberBox->setValue(m_initialValue);
}

void NumberCheckBoxUIFeature::updateFeatureWithNewSettings() {
    std::int32_t number = m_initialValue;
    const bool isSet = getSettings()->getLong(m_feature, &number);
    if (m_checkBox != nullptr) {
        m_checkBox->setChecked(isSet != m_invertCheck);
    }
    if (m_numberBox != nullptr) {
        m_numberBox->setValue(number);
        if (isSet) {
            m_numberBox->enable();
        } else if (m_checkBox != nullptr) {
            m_numberBox->disable();
        }
    }
}

bool NumberCheckBoxUIFeature::isCheckBox(std::uint16_t subjectId) const {
    return m_checkBox != nullptr && subjectId == m_checkBox->getSubjectId();
}

void NumberCheckBoxUIFeature::handleSubjectUpdate(std::uint16_t subjectId) {
    if (isCheckBox(subjectId)) {
        handleCheckBox();
    } else {
        writeNumber();
    }
    if (m_numberBox != nullptr) {
        m_lastValue = m_numberBox->getInteger();
    }
    notifyObservers();
    reportChanged();
}

// While the printer decides, the number stays in its disabled box, so that the user gets it back.
void NumberCheckBoxUIFeature::handleCheckBox() {
    if (m_numberBox != nullptr) {
        m_numberBox->setEnabled(isNumberWanted());
    }
    if (isNumberWanted()) {
        writeNumber();
    } else {
        setPrinterDefault(*getSettings());
    }
}

void NumberCheckBoxUIFeature::writeNumber() {
    getSettings()->setLong(m_feature,
                           m_numberBox != nullptr ? m_numberBox->getInteger() : m_initialValue);
}

void NumberCheckBoxUIFeature::setPrinterDefault(FeatureSettings& settings) {
    settings.setFeatureValue(m_feature, FeatureValue());
}

} // namespace zent
