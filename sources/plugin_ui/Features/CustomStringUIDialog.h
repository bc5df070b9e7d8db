#pragma once

#include "plugin_ui/UIDialog.h"

namespace zent {

class CustomStringDialogUIFeature;

/// Asks for a value of the user's own for a feature.
class CustomStringUIDialog : public UIDialog {
public:
    /// `text` is what the user begins with.
    CustomStringUIDialog(UIConfiguration& configuration, FeatureEnum feature, const CXString& text);

    /// What the user has entered.
    const CXString& getText() const;

private:
    const CustomStringDialogUIFeature& m_feature;
};

} // namespace zent
