#pragma once

#include "plugin_ui/Controls/CheckBoxUIControl.h"
#include "plugin_ui/Controls/NumberBoxUIControl.h"
#include "plugin_ui/Controls/TextBoxUIControl.h"
#include "plugin_ui/Features/UIFeature.h"

namespace zent {

/// A feature that is a number: a box for it, a text that tells its range, and, where the printer's
/// default is a choice, a check box for whether there is a number at all.
class NumberCheckBoxUIFeature : public UIFeature {
public:
    /// Items of number 0 are left out; `editSpinId` is the spin of the box `numberId`.
    /// `initialValue` is shown where the ticket holds none. The check box is ticked for a number,
    /// or, with `invertCheck`, for the printer's default.
    NumberCheckBoxUIFeature(UIConfiguration& configuration, FeatureEnum feature,
                            std::uint16_t editSpinId, std::uint16_t rangeTextId,
                            std::uint16_t numberId, std::uint16_t checkBoxId, NumberType numberType,
                            std::int32_t initialValue, bool invertCheck, FeatureEnum parentFeature);

    bool isSupported() override;
    void initializeFeature() override;
    void updateFeatureWithNewSettings() override;
    void handleSubjectUpdate(std::uint16_t subjectId) override;
    void setPrinterDefault(FeatureSettings& settings) override;

    /// The number that the user has chosen last, or `initialValue`.
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
