#pragma once

#include "ocore/FeatureSettings/FeatureValue.h"
#include "plugin_ui/Controls/CheckBoxUIControl.h"
#include "plugin_ui/Features/UIFeature.h"

namespace zent {

/// A feature of two values: a check box, and a second one for the printer's default where that is
/// a choice.
class CheckBoxUIFeature : public UIFeature {
public:
    CheckBoxUIFeature(UIConfiguration& configuration, FeatureEnum feature, std::uint16_t mainId,
                      std::uint16_t defaultId, FeatureValue checkedValue,
                      FeatureValue uncheckedValue, FeatureEnum parentFeature);

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
