#include "plugin_ui/Features/CustomStringUIDialog.h"

#include "plugin_ui/Features/CustomStringDialogUIFeature.h"

namespace zent {

namespace {

constexpr std::uint32_t templateId = 1355;

} // namespace

CustomStringUIDialog::CustomStringUIDialog(UIConfiguration& configuration, FeatureEnum feature,
                                           const CXString& text)
    : UIDialog(configuration, templateId, jobLevel, false),
      m_feature(makeChild<CustomStringDialogUIFeature>(configuration, feature, text)) {}

const CXString& CustomStringUIDialog::getText() const { return m_feature.getText(); }

} // namespace zent
