#include "plugin_ui/Features/AccountDialogUIFeature.h"

#include "ocore/FeatureSettings/FeatureEnum.h"
#include "resources/ids.h"

namespace zent {

namespace {

constexpr TextEntryRow account{feature::jobAccountID, 0, IDC_ACCOUNT_ID_LABEL, IDC_ACCOUNT_ID};
constexpr TextEntryRow user{feature::jobAccountingUserID, 0, IDC_ACCOUNT_USER_LABEL,
                            IDC_ACCOUNT_USER};
constexpr TextEntryRow data{feature::jobAccountingData, 0, IDC_ACCOUNT_DATA_LABEL,
                            IDC_ACCOUNT_DATA};

} // namespace

AccountDialogUIFeature::AccountDialogUIFeature(UIConfiguration& configuration,
                                               FeatureEnum parentFeature)
    : UIFeature(configuration, parentFeature) {
    makeChild<AccountUIFeature>(configuration, account, parentFeature);
    m_user = &makeChild<AccountUIFeature>(configuration, user, parentFeature);
    m_data = &makeChild<AccountUIFeature>(configuration, data, parentFeature);
}

bool AccountDialogUIFeature::isSupported() {
    return configure() && (hasChild(*m_user) || hasChild(*m_data));
}

} // namespace zent
