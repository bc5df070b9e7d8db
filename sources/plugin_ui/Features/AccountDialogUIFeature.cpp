#include "plugin_ui/Features/AccountDialogUIFeature.h"

#include "resources/ids.h"

namespace zent {

AccountDialogUIFeature::AccountDialogUIFeature(UIConfiguration& configuration,
                                               FeatureEnum parentFeature)
    : UIFeature(configuration, parentFeature) {
    makeChild<AccountUIFeature>(configuration, 0, IDC_ACCOUNT_ID_LABEL, IDC_ACCOUNT_ID,
                                feature::jobAccountID);
    m_user = &makeChild<AccountUIFeature>(configuration, 0, IDC_ACCOUNT_USER_LABEL,
                                          IDC_ACCOUNT_USER, feature::jobAccountingUserID);
    m_data = &makeChild<AccountUIFeature>(configuration, 0, IDC_ACCOUNT_DATA_LABEL,
                                          IDC_ACCOUNT_DATA, feature::jobAccountingData);
    setParentFeature(parentFeature);
}

bool AccountDialogUIFeature::isSupported() {
    return configure() && (hasChild(*m_user) || hasChild(*m_data));
}

} // namespace zent
