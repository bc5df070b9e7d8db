#pragma once

#include "plugin_ui/Controls/PushButtonUIControl.h"
#include "plugin_ui/Controls/TextBoxUIControl.h"
#include "plugin_ui/Features/UIFeature.h"

namespace zent {

/// Asks for a value of the user's own for a feature, which is a text and mustn't be empty.
class CustomStringDialogUIFeature : public UIFeature {
public:
    CustomStringDialogUIFeature(UIConfiguration& configuration, FeatureEnum feature,
                                const CXString& text);

    const CXString& getText() const { return m_text; }

    bool isSupported() override;
    void initializeFeature() override;
    void updateFeatureWithNewSettings() override;
    void handleSubjectUpdate(std::uint16_t subjectId) override;
    bool validate(platform::WindowHandle window) override;

private:
    void enableAcceptance();

    _FI m_feature;
    CXString m_text;
    TextBoxUIControl& m_textBox;
    PushButtonUIControl& m_okButton;
};

} // namespace zent
