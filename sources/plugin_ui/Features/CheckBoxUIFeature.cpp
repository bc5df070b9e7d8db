#include "plugin_ui/Features/CheckBoxUIFeature.h"

namespace zent {

CheckBoxUIFeature::CheckBoxUIFeature(UIConfiguration& configuration, const CheckBoxRow& row,
                                     FeatureEnum parentFeature)
    : UIFeature(configuration, parentFeature, row.role), m_feature(row.feature),
      m_checkedValue(row.checkedValue), m_uncheckedValue(row.uncheckedValue),
      m_mainBox(makeChild<CheckBoxUIControl>(row.mainId)) {
    m_mainBox.attach(*this);
    if (getCapabilities().isPrinterDefaultAvailable(m_feature, hasParentFeature())) {
        m_defaultBox = &makeChild<CheckBoxUIControl>(row.defaultId);
        m_defaultBox->attach(*this);
    }
}

bool CheckBoxUIFeature::isSupported() { return isFeatureSupported(m_feature); }

void CheckBoxUIFeature::updateFeatureWithNewSettings() {
    const FeatureValue value = getSettings()->getFeatureValue(m_feature);
    if (m_defaultBox != nullptr) {
        const bool isDefault = value == FeatureValue();
        m_defaultBox->setChecked(isDefault);
        if (isDefault) {
            m_mainBox.disable();
            return;
        }
    }
    // The box isn't enabled here: that is up to the user, by the other one.
    m_mainBox.setChecked(value == m_checkedValue);
}

void CheckBoxUIFeature::handleSubjectUpdate(std::uint16_t subjectId) {
    if (m_defaultBox != nullptr && subjectId == m_defaultBox->getSubjectId()) {
        handleDefaultBox();
    } else {
        writeMainBox();
    }
    notifyObservers();
}

void CheckBoxUIFeature::handleDefaultBox() {
    m_mainBox.setEnabled(!m_defaultBox->isChecked());
    if (m_defaultBox->isChecked()) {
        getSettings()->setFeatureValue(m_feature, FeatureValue());
    } else {
        writeMainBox();
    }
}

void CheckBoxUIFeature::writeMainBox() {
    getSettings()->setFeatureValue(m_feature,
                                   m_mainBox.isChecked() ? m_checkedValue : m_uncheckedValue);
}

void CheckBoxUIFeature::setDefaultText(std::uint32_t stringId) {
    if (m_defaultBox != nullptr) {
        m_defaultBox->setCaptionId(stringId);
    }
}

} // namespace zent
