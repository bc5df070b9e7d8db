#include "plugin_ui/Features/AccountDialogUIFeature.h"

namespace zent {

AccountDialogUIFeature::AccountDialogUIFeature(UIConfiguration& configuration,
                                               FeatureEnum parentFeature)
    : UIFeature(configuration, parentFeature) {
    addStaticControl(2301);
    makeChild<AccountUIFeature>(configuration, 0, 2302, 2303, feature::jobAccountID);
    m_user =
        &makeChild<AccountUIFeature>(configuration, 0, 2304, 2305, feature::jobAccountingUserID);
    m_data = &makeChild<AccountUIFeature>(configuration, 0, 2306, 2307, feature::jobAccountingData);
    setParentFeature(parentFeature);
}

bool AccountDialogUIFeature::isSupported() {
    return configure() && (hasChild(*m_user) || hasChild(*m_data));
}

} // namespace zent
