#include "plugin_ui/Features/CustomStringUIDialog.h"

#include "plugin_ui/Features/CustomStringDialogUIFeature.h"
#include "resources/ids.h"

namespace zent {

CustomStringUIDialog::CustomStringUIDialog(UIConfiguration& configuration, FeatureEnum feature,
                                           const CXString& text)
    : UIDialog(configuration, IDD_CUSTOM_VALUE, jobLevel, false),
      m_feature(makeChild<CustomStringDialogUIFeature>(configuration, feature, text)) {}

const CXString& CustomStringUIDialog::getText() const { return m_feature.getText(); }

} // namespace zent
