#include "plugin_ui/Features/KeyWordListUIFeature.h"

#include <algorithm>

#include "ocore/Resources/ResourceLibrary.h"
#include "platform/KeepForever.h"
#include "plugin_ui/Features/CustomStringDialogUIFeature.h"
#include "plugin_ui/Features/DialogTable.h"
#include "resources/ids.h"

namespace zent {

namespace {

/// The value that stands for the custom item of all features in the process. Its text is that of
/// the feature which needs it first.
const FeatureValue& customItem(const _FI& feature, std::uint32_t labelId) {
    static const FeatureValue& value = keepForever<FeatureValue>([&] {
        const ResourceLibrary library;
        const CXString label = labelId != 0 ? library.getString(labelId) : CXString();
        return FeatureValue::fromText(
            feature, CXString::FormatResource(library.getModule(), IDS_CUSTOM_ITEM, label));
    }());
    return value;
}

} // namespace

KeyWordListUIFeature::KeyWordListUIFeature(UIConfiguration& configuration,
                                           const KeyWordListRow& row, FeatureEnum parentFeature)
    : UIFeature(configuration, parentFeature, row.role), m_row(row), m_feature(row.feature),
      m_comboBox(makeChild<ComboBoxUIControl>(row.comboId, row.labelId)) {
    m_comboBox.attach(*this);
    if (row.bitmapItemId != 0) {
        m_bitmapControl = &makeChild<BitmapUIControl>(row.bitmapItemId, row.defaultBitmapId);
    }
}

bool KeyWordListUIFeature::isSupported() { return isFeatureSupported(m_feature); }

const FeatureValue& KeyWordListUIFeature::getCustomItem() const {
    return customItem(m_feature, m_row.customLabelId);
}

bool KeyWordListUIFeature::isOffered(const FeatureValue& value) const {
    return std::ranges::find(m_values, value) != m_values.end();
}

void KeyWordListUIFeature::appendItem(const CXString& text, const FeatureValue& value) {
    m_comboBox.addItem(text, codeOf(value), m_row.showCustomFirst ? 1 : -1);
}

// The list is the printer's and not the ticket's: what a ticket brings along is added only where
// users may define values, and else stands unselected for the check to find.
void KeyWordListUIFeature::initializeFeature() {
    m_comboBox.clear();
    m_values = getCapabilities().getFeatureCapabilities(m_feature, hasParentFeature());
    for (const FeatureValue& value : m_values) {
        m_comboBox.addItem(value.getDisplayString(), codeOf(value));
    }
    showDefaultText();
    m_customValues.clear();
    m_lastCustomValue.reset();
    m_customAllowed = getCapabilities().isUserDefinable(m_feature);
    if (m_customAllowed && m_row.replaceCustomItem) {
        appendItem(getCustomItem().getText(), getCustomItem());
    } else if (m_customAllowed) {
        addCustomValue(getCustomItem());
    }
    m_initialised = true;
}

void KeyWordListUIFeature::addCustomValue(const FeatureValue& value) {
    CXString text = value.getText();
    if (m_row.decorateValues && value != getCustomItem()) {
        const ResourceLibrary library;
        text = CXString::FormatResource(library.getModule(), IDS_CUSTOM_VALUE, text);
    }
    const std::int32_t index = m_comboBox.findValue(codeOf(value));
    if (index >= 0) {
        m_comboBox.setItemText(index, text);
    } else {
        appendItem(text, value);
        m_customValues.push_back(value);
    }
    m_lastCustomValue = value;
}

void KeyWordListUIFeature::updateFeatureWithNewSettings() {
    const FeatureValue value = getSettings()->getFeatureValue(m_feature);
    if (value != FeatureValue() && !isOffered(value) && m_customAllowed) {
        addCustomValue(value);
    }
    if (m_row.sortList) {
        m_comboBox.sort();
    }
    m_comboBox.select(codeOf(value));
    showBitmap(value);
}

void KeyWordListUIFeature::showBitmap(const FeatureValue& value) {
    if (m_bitmapControl != nullptr) {
        const std::uint32_t own = value.getImageID();
        m_bitmapControl->setBitmap(own != 0 ? own : m_row.defaultBitmapId);
    }
}

bool KeyWordListUIFeature::isCustomChoice(const FeatureValue& value) const {
    return m_customAllowed &&
           (value == getCustomItem() || (m_row.replaceCustomItem && m_lastCustomValue == value));
}

void KeyWordListUIFeature::handleSubjectUpdate(std::uint16_t /*subjectId*/) {
    FeatureValue value(static_cast<std::int32_t>(m_comboBox.getSelectedValue()));
    if (isCustomChoice(value)) {
        const auto custom = askForCustomValue();
        if (!custom) {
            updateFeatureWithNewSettings();
            return;
        }
        value = *custom;
    }
    getSettings()->setFeatureValue(m_feature, value);
    notifyObservers();
    if (isJobLevel()) {
        reportChanged();
    }
    updateFeatureWithNewSettings();
}

CXString KeyWordListUIFeature::getLastCustomText() const {
    const bool isThere = m_lastCustomValue && *m_lastCustomValue != getCustomItem();
    return isThere ? m_lastCustomValue->getText() : CXString();
}

/// A text that names a value of the feature gives that one, so that no value comes twice.
std::optional<FeatureValue> KeyWordListUIFeature::askForCustomValue() {
    CustomStringUIDialog dialog(getConfiguration(), m_feature.getFeature(), getLastCustomText());
    FeatureSettings scratch;
    if (!dialog.runModal(getWindow(), scratch)) {
        return std::nullopt;
    }
    return FeatureValue::fromText(m_feature, dialog.getRoot().getText());
}

void KeyWordListUIFeature::setPrinterDefault(FeatureSettings& settings) {
    settings.setFeatureValue(m_feature, FeatureValue());
}

void KeyWordListUIFeature::setDefaultText(std::uint32_t stringId) {
    m_defaultTextId = stringId;
    if (m_initialised) {
        showDefaultText();
    }
}

void KeyWordListUIFeature::showDefaultText() {
    const std::int32_t index = m_comboBox.findValue(FeatureValue::unspecified);
    if (m_defaultTextId != 0 && index >= 0) {
        m_comboBox.setItemText(index, ResourceLibrary().getString(m_defaultTextId));
    }
}

} // namespace zent
