#pragma once

#include "ocore/FeatureSettings/FeatureValue.h"
#include "plugin_ui/Controls/CheckBoxUIControl.h"
#include "plugin_ui/Features/UIFeature.h"

namespace zent {

class CheckBoxUIFeature;

/// What tells one check box from another.
struct CheckBoxRow {
    using Class = CheckBoxUIFeature;

    FeatureEnum feature{};
    std::uint16_t mainId = 0;
    std::uint16_t defaultId = 0;
    value::Number checkedValue{};
    value::Number uncheckedValue{};
    FeatureRole role = FeatureRole::none;
};

/// A feature of two values, for which a check box stands, and a second one for the printer's
/// default where that is a choice.
class CheckBoxUIFeature : public UIFeature {
public:
    CheckBoxUIFeature(UIConfiguration& configuration, const CheckBoxRow& row,
                      FeatureEnum parentFeature);

    bool isSupported() override;
    void updateFeatureWithNewSettings() override;
    void handleSubjectUpdate(std::uint16_t subjectId) override;
    void setDefaultText(std::uint32_t stringId) override;

private:
    void handleDefaultBox();
    void writeMainBox();

    _FI m_feature;
    FeatureValue m_checkedValue;
    FeatureValue m_uncheckedValue;
    CheckBoxUIControl& m_mainBox;
    CheckBoxUIControl* m_defaultBox = nullptr;
};

} // namespace zent
