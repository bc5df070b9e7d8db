#include "plugin_ui/Features/CustomStringDialogUIFeature.h"

#include "plugin_ui/Features/TextLength.h"
#include "resources/ids.h"

namespace zent {

namespace {

constexpr std::uint16_t okButton = 1;
constexpr std::uint32_t capacity = 255;

} // namespace

CustomStringDialogUIFeature::CustomStringDialogUIFeature(UIConfiguration& configuration,
                                                         FeatureEnum feature, const CXString& text)
    : UIFeature(configuration), m_feature(feature), m_text(text),
      m_textBox(makeChild<TextBoxUIControl>(
          IDC_CUSTOM_VALUE, std::initializer_list<std::uint16_t>{IDC_CUSTOM_VALUE_LABEL},
          capacity)),
      m_okButton(makeChild<PushButtonUIControl>(okButton)) {
    m_textBox.attach(*this);
}

bool CustomStringDialogUIFeature::isSupported() {
    return isFeatureSupported(m_feature) && getCapabilities().isUserDefinable(m_feature);
}

void CustomStringDialogUIFeature::initializeFeature() {
    m_textBox.setMaxLength(getCapabilities().getUpperLimit(m_feature));
    if (!getCapabilities().allowsEmbeddedSpaces(m_feature)) {
        m_textBox.setFilterMode(FilterMode::lettersAndDigitsNoSpaces);
    }
}

void CustomStringDialogUIFeature::updateFeatureWithNewSettings() {
    m_textBox.setText(m_text);
    enableAcceptance();
}

void CustomStringDialogUIFeature::handleSubjectUpdate(std::uint16_t /*subjectId*/) {
    m_text = m_textBox.getText();
    enableAcceptance();
}

void CustomStringDialogUIFeature::enableAcceptance() { m_okButton.setEnabled(!m_text.isEmpty()); }

bool CustomStringDialogUIFeature::validate(platform::WindowHandle window) {
    return !m_text.isEmpty() && validateLength(window, m_textBox, m_feature);
}

} // namespace zent
