#include "plugin_ui/Features/JobNotesUIFeature.h"

#include "ocore/FeatureSettings/FeatureEnum.h"
#include "plugin_ui/Features/AccountDialogUIFeature.h"
#include "plugin_ui/Features/DialogTable.h"
#include "plugin_ui/Features/FeatureRow.h"
#include "plugin_ui/Features/JobNameUIFeature.h"
#include "plugin_ui/Features/PersonNameUIFeature.h"
#include "resources/ids.h"

namespace zent {

namespace {

constexpr TextEntryRow jobName{feature::jobName, IDC_JOB_GROUP, IDC_JOB_NAME_LABEL, IDC_JOB_NAME};
constexpr TextEntryRow account{feature::jobAccountID, IDC_JOB_GROUP, IDC_JOB_ACCOUNT_LABEL,
                               IDC_JOB_ACCOUNT};
constexpr TextEntryRow people[] = {
    {feature::requestingUserName, IDC_PEOPLE_GROUP, IDC_SENDER_LABEL, IDC_SENDER},
    {feature::jobRecipientName, IDC_PEOPLE_GROUP, IDC_RECIPIENT_LABEL, IDC_RECIPIENT},
};
constexpr FeatureRow messages[] = {
    TextEntryRow{feature::jobSheetMessage, IDC_MESSAGES_GROUP, IDC_BANNER_MESSAGE_LABEL,
                 IDC_BANNER_MESSAGE},
    TextEntryRow{feature::jobMessageToOperator, IDC_MESSAGES_GROUP, IDC_OPERATOR_MESSAGE_LABEL,
                 IDC_OPERATOR_MESSAGE},
    TextEntryRow{feature::jobPhoneNumber, IDC_PEOPLE_GROUP, IDC_PHONE_NUMBER_LABEL,
                 IDC_PHONE_NUMBER},
};

} // namespace

JobNotesUIFeature::JobNotesUIFeature(UIConfiguration& configuration, FeatureEnum parentFeature)
    : UIFeature(configuration, parentFeature) {
    makeChild<JobNameUIFeature>(configuration, jobName);
    m_accountButton = &makeChild<DialogLaunchButtonUIFeature>(
        configuration, std::make_unique<AccountUIDialog>(configuration, parentFeature),
        IDC_ACCOUNT_BUTTON);
    m_accountEntry = &makeChild<AccountUIFeature>(configuration, account);
    for (const TextEntryRow& row : people) {
        makeChild<PersonNameUIFeature>(configuration, row);
    }
    addFeatures(*this, messages);
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
