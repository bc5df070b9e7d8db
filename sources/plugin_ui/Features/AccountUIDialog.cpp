#include "plugin_ui/Features/AccountUIDialog.h"

#include "plugin_ui/Features/AccountDialogUIFeature.h"

namespace zent {

AccountUIDialog::AccountUIDialog(UIConfiguration& configuration, std::uint32_t templateId,
                                 FeatureEnum parentFeature)
    : UIDialog(configuration, templateId, parentFeature, false) {
    makeChild<AccountDialogUIFeature>(configuration, parentFeature);
}

} // namespace zent
