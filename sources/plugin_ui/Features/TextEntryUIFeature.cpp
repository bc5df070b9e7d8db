#include "plugin_ui/Features/TextEntryUIFeature.h"

#include "plugin_ui/Features/TextLength.h"

namespace zent {

namespace {

constexpr std::uint32_t usualCapacity = 50;

} // namespace

TextEntryUIFeature::TextEntryUIFeature(UIConfiguration& configuration, const TextEntryRow& row,
                                       FeatureEnum parentFeature)
    : UIFeature(configuration, parentFeature), m_feature(row.feature),
      m_textBox(makeChild<TextBoxUIControl>(
          row.editId, std::initializer_list<std::uint16_t>{row.labelId}, usualCapacity)) {
    m_textBox.attach(*this);
    if (row.extraItemId != 0) {
        addStaticControl(row.extraItemId);
    }
}

bool TextEntryUIFeature::isSupported() { return isFeatureSupported(m_feature); }

void TextEntryUIFeature::initializeFeature() {
    m_textBox.setMaxLength(getCapabilities().getUpperLimit(m_feature));
}

void TextEntryUIFeature::updateFeatureWithNewSettings() { m_textBox.setText(readText()); }

void TextEntryUIFeature::handleSubjectUpdate(std::uint16_t /*subjectId*/) {
    writeText(m_textBox.getText());
    reportChanged();
}

bool TextEntryUIFeature::validate(platform::WindowHandle window) {
    return validateLength(window, m_textBox, m_feature);
}

CXString TextEntryUIFeature::readText() {
    CXString text;
    getSettings()->getString(m_feature, &text);
    return text;
}

void TextEntryUIFeature::writeText(const CXString& text) {
    if (text.isEmpty()) {
        getSettings()->setFeatureValue(m_feature, FeatureValue());
    } else {
        getSettings()->setString(m_feature, text);
    }
}

} // namespace zent
