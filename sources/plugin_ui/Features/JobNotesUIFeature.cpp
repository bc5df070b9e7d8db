#include "plugin_ui/Features/JobNotesUIFeature.h"

#include "plugin_ui/Features/AccountDialogUIFeature.h"
#include "plugin_ui/Features/DialogTable.h"
#include "plugin_ui/Features/JobNameUIFeature.h"
#include "plugin_ui/Features/PersonNameUIFeature.h"
#include "resources/ids.h"

namespace zent {

JobNotesUIFeature::JobNotesUIFeature(UIConfiguration& configuration, FeatureEnum parentFeature)
    : UIFeature(configuration, parentFeature) {
    makeChild<JobNameUIFeature>(configuration, IDC_JOB_GROUP, IDC_JOB_NAME_LABEL, IDC_JOB_NAME);
    m_accountButton = &makeChild<DialogLaunchButtonUIFeature>(
        configuration, std::make_unique<AccountUIDialog>(configuration, parentFeature),
        IDC_ACCOUNT_BUTTON);
    m_accountEntry =
        &makeChild<AccountUIFeature>(configuration, IDC_JOB_GROUP, IDC_JOB_ACCOUNT_LABEL,
                                     IDC_JOB_ACCOUNT, feature::jobAccountID);
    makeChild<PersonNameUIFeature>(configuration, IDC_PEOPLE_GROUP, IDC_SENDER_LABEL, IDC_SENDER,
                                   feature::requestingUserName);
    makeChild<PersonNameUIFeature>(configuration, IDC_PEOPLE_GROUP, IDC_RECIPIENT_LABEL,
                                   IDC_RECIPIENT, feature::jobRecipientName);
    makeChild<TextEntryUIFeature>(configuration, IDC_MESSAGES_GROUP, IDC_BANNER_MESSAGE_LABEL,
                                  IDC_BANNER_MESSAGE, feature::jobSheetMessage);
    makeChild<TextEntryUIFeature>(configuration, IDC_MESSAGES_GROUP, IDC_OPERATOR_MESSAGE_LABEL,
                                  IDC_OPERATOR_MESSAGE, feature::jobMessageToOperator);
    makeChild<TextEntryUIFeature>(configuration, IDC_PEOPLE_GROUP, IDC_PHONE_NUMBER_LABEL,
                                  IDC_PHONE_NUMBER, feature::jobPhoneNumber);
    setParentFeature(TJTF_ANY);
}

bool JobNotesUIFeature::isSupported() {
    const bool isAnySupported = configure();
    if (hasChild(*m_accountButton) && hasChild(*m_accountEntry)) {
        removeChild(*m_accountEntry);
    }
    return isAnySupported;
}

} // namespace zent
