#pragma once

#include <optional>

#include "ocore/FeatureSettings/FeatureValue.h"
#include "plugin_ui/Controls/BitmapUIControl.h"
#include "plugin_ui/Controls/ComboBoxUIControl.h"
#include "plugin_ui/Features/UIFeature.h"

namespace zent {

class KeyWordListUIFeature;

/// What tells one drop-down list of keywords from another. Items and texts of number 0 are left
/// out.
struct KeyWordListRow {
    using Class = KeyWordListUIFeature;

    FeatureEnum feature{};
    std::uint16_t comboId = 0;
    std::uint16_t labelId = 0;
    /// The place of a picture of the chosen value, and the one for values that have none.
    std::uint16_t bitmapItemId = 0;
    std::uint32_t defaultBitmapId = 0;
    /// A string that completes the text of the custom item.
    std::uint32_t customLabelId = 0;
    FeatureRole role = FeatureRole::none;
    bool sortList = false;
    /// Whether the custom item stands right after the first one.
    bool showCustomFirst = false;
    /// Whether choosing the custom value that is shown changes it, as the custom item does.
    bool replaceCustomItem = false;
    /// Whether values that users have defined are marked as such.
    bool decorateValues = true;
};

/// A feature that has one of the printer's values: a drop-down list offers them, beside a picture
/// of the chosen one if wanted. Where users may define values, one more item asks for one.
class KeyWordListUIFeature : public UIFeature {
public:
    KeyWordListUIFeature(UIConfiguration& configuration, const KeyWordListRow& row,
                         FeatureEnum parentFeature);

    bool isSupported() override;
    void initializeFeature() override;
    void updateFeatureWithNewSettings() override;
    void handleSubjectUpdate(std::uint16_t subjectId) override;
    void setPrinterDefault(FeatureSettings& settings) override;
    void setDefaultText(std::uint32_t stringId) override;

    const std::vector<FeatureValue>& getValues() const { return m_values; }
    ComboBoxUIControl& getComboBox() { return m_comboBox; }

private:
    static std::uint32_t codeOf(const FeatureValue& value) {
        return static_cast<std::uint32_t>(value.getValue());
    }
    const FeatureValue& getCustomItem() const;
    bool isOffered(const FeatureValue& value) const;
    bool isCustomChoice(const FeatureValue& value) const;
    void addCustomValue(const FeatureValue& value);
    void appendItem(const CXString& text, const FeatureValue& value);
    void showDefaultText();
    void showBitmap(const FeatureValue& value);
    CXString getLastCustomText() const;
    std::optional<FeatureValue> askForCustomValue();

    KeyWordListRow m_row;
    _FI m_feature;
    std::vector<FeatureValue> m_values;
    ComboBoxUIControl& m_comboBox;
    BitmapUIControl* m_bitmapControl = nullptr;
    bool m_customAllowed = false;
    std::vector<FeatureValue> m_customValues; // keeps alive what the items name by number alone
    std::optional<FeatureValue> m_lastCustomValue;
    std::uint32_t m_defaultTextId = 0;
    bool m_initialised = false;
};

} // namespace zent
