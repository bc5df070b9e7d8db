#pragma once

#include "plugin_ui/Controls/CheckBoxUIControl.h"
#include "plugin_ui/Controls/NumberBoxUIControl.h"
#include "plugin_ui/Controls/TextBoxUIControl.h"
#include "plugin_ui/Features/UIFeature.h"

namespace zent {

class NumberCheckBoxUIFeature;

/// What tells one number from another. Items of number 0 are left out.
struct NumberRow {
    using Class = NumberCheckBoxUIFeature;

    FeatureEnum feature{};
    std::uint16_t editSpinId = 0;
    std::uint16_t rangeTextId = 0;
    std::uint16_t numberId = 0;
    std::uint16_t checkBoxId = 0;
    /// What is shown where the ticket holds no number.
    std::int32_t initialValue = 0;
    /// Whether the check box is ticked for the printer's default and not for a number.
    bool invertCheck = false;
    FeatureRole role = FeatureRole::none;
};

/// A feature that is a number: a box takes it, a text says its range, and, where the printer's
/// default is a choice, a check box says whether there is a number at all.
class NumberCheckBoxUIFeature : public UIFeature {
public:
    NumberCheckBoxUIFeature(UIConfiguration& configuration, const NumberRow& row,
                            FeatureEnum parentFeature);

    bool isSupported() override;
    void initializeFeature() override;
    void updateFeatureWithNewSettings() override;
    void handleSubjectUpdate(std::uint16_t subjectId) override;
    void setPrinterDefault(FeatureSettings& settings) override;

    /// The number that the user has chosen last; until then the one that was shown without any.
    std::int32_t getLastValue() const { return m_lastValue; }

private:
    bool isCheckBox(std::uint16_t subjectId) const;
    /// Whether the check box stands for a number.
    bool isNumberWanted() const { return m_checkBox->isChecked() != m_invertCheck; }
    void handleCheckBox();
    void writeNumber();

    _FI m_feature;
    NumberBoxUIControl* m_numberBox = nullptr;
    TextBoxUIControl* m_rangeText = nullptr;
    CheckBoxUIControl* m_checkBox = nullptr;
    std::int32_t m_lowerBound = 0;
    std::int32_t m_upperBound = 0;
    std::int32_t m_initialValue;
    bool m_invertCheck;
    std::int32_t m_lastValue;
};

} // namespace zent
