#pragma once

#include <optional>

#include "ocore/FeatureSettings/FeatureValue.h"
#include "plugin_ui/Controls/BitmapUIControl.h"
#include "plugin_ui/Controls/ComboBoxUIControl.h"
#include "plugin_ui/Features/UIFeature.h"

namespace zent {

/// A feature that has one of the printer's values: a drop-down list of them, with a picture of the
/// chosen one if wanted. Where users may define values, a last item asks for one.
class KeyWordListUIFeature : public UIFeature {
public:
    KeyWordListUIFeature(UIConfiguration& configuration, std::uint16_t comboId,
                         std::uint16_t labelId, FeatureEnum feature, FeatureEnum parentFeature);
    /// With a picture; `bitmapItemId` 0 is none. `defaultBitmapId` is for values that have none.
    /// `customLabelId` is a resource string for the text of the custom item, 0 for none.
    KeyWordListUIFeature(UIConfiguration& configuration, std::uint16_t comboId,
                         std::uint16_t labelId, FeatureEnum feature, FeatureEnum parentFeature,
                         std::uint16_t bitmapItemId, std::uint32_t defaultBitmapId,
                         std::uint32_t customLabelId);

    // To be set before the dialog starts.
    void setSortList(bool sorts) { m_sortList = sorts; }
    /// The custom item stands right behind the first one.
    void setShowCustomFirst(bool isFirst) { m_showCustomFirst = isFirst; }
    /// Choosing the custom value that is shown changes it, as the custom item does.
    void setReplaceCustomItem(bool replaces) { m_replaceCustomItem = replaces; }
    /// Whether values that users have defined are marked as such.
    void setDecorateValues(bool decorates) { m_decorateValues = decorates; }

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

    _FI m_feature;
    std::vector<FeatureValue> m_values;
    ComboBoxUIControl& m_comboBox;
    BitmapUIControl* m_bitmapControl = nullptr;
    std::uint32_t m_defaultBitmapId = 0;
    std::uint32_t m_customLabelId = 0;
    bool m_sortList = false;
    bool m_showCustomFirst = false;
    bool m_replaceCustomItem = false;
    bool m_decorateValues = true;
    bool m_customAllowed = false;
    std::vector<FeatureValue> m_customValues; // whose items stand in the box by their numbers
    std::optional<FeatureValue> m_lastCustomValue;
    std::uint32_t m_defaultTextId = 0;
    bool m_initialised = false;
};

} // namespace zent
