#include "plugin_ui/Features/JobNotesUIDialog.h"

#include "plugin_ui/Controls/StaticUIControl.h"
#include "plugin_ui/Features/JobNotesUIFeature.h"
#include "resources/ids.h"

namespace zent {

JobNotesUIDialog::JobNotesUIDialog(UIConfiguration& configuration, bool bindStockInformation,
                                   FeatureEnum parentFeature)
    : UIDialog(configuration, IDD_JOB_NOTES, parentFeature, bindStockInformation) {
    setButtonIds(IDC_JOB_NOTES_OK, IDC_JOB_NOTES_CANCEL);
    makeChild<JobNotesUIFeature>(configuration, parentFeature);
    makeChild<StaticUIControl>(IDC_JOB_NOTES_INTRODUCTION);
}

} // namespace zent
