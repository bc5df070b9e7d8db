#pragma once

#include "plugin_ui/UIDialog.h"

namespace zent {

/// The page of job notes as a dialog of its own.
class JobNotesUIDialog : public UIDialog {
public:
    JobNotesUIDialog(UIConfiguration& configuration, bool bindStockInformation,
                     FeatureEnum parentFeature);
};

} // namespace zent
