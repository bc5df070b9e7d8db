#include "plugin_ui/Features/JobNotesUIDialog.h"

#include "plugin_ui/Controls/StaticUIControl.h"
#include "plugin_ui/Features/JobNotesUIFeature.h"

namespace zent {

namespace {

constexpr std::uint32_t templateId = 2218;
constexpr std::uint16_t okButton = 2219;
constexpr std::uint16_t cancelButton = 2220;
constexpr std::uint16_t frame = 2200;

} // namespace

JobNotesUIDialog::JobNotesUIDialog(UIConfiguration& configuration, bool bindStockInformation,
                                   FeatureEnum parentFeature)
    : UIDialog(configuration, templateId, parentFeature, bindStockInformation) {
    setButtonIds(okButton, cancelButton);
    makeChild<JobNotesUIFeature>(configuration, parentFeature);
    makeChild<StaticUIControl>(frame);
}

} // namespace zent
