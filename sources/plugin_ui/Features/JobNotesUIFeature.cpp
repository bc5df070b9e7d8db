#include "plugin_ui/Features/JobNotesUIFeature.h"

#include "plugin_ui/Features/AccountUIDialog.h"
#include "plugin_ui/Features/JobNameUIFeature.h"
#include "plugin_ui/Features/PersonNameUIFeature.h"

namespace zent {

namespace {

constexpr std::uint32_t accountTemplate = 2300;

// Headings above the boxes.
constexpr std::uint16_t jobHeading = 2215;
constexpr std::uint16_t peopleHeading = 2216;
constexpr std::uint16_t messagesHeading = 2217;

} // namespace

JobNotesUIFeature::JobNotesUIFeature(UIConfiguration& configuration, FeatureEnum parentFeature)
    : UIFeature(configuration, parentFeature) {
    makeChild<JobNameUIFeature>(configuration, jobHeading, 2208, 2201);
    m_accountButton = &makeChild<DialogLaunchButtonUIFeature>(
        configuration,
        std::make_unique<AccountUIDialog>(configuration, accountTemplate, parentFeature), 2221);
    m_accountEntry =
        &makeChild<AccountUIFeature>(configuration, jobHeading, 2210, 2202, feature::jobAccountID);
    makeChild<PersonNameUIFeature>(configuration, peopleHeading, 2209, 2203,
                                   feature::requestingUserName);
    makeChild<PersonNameUIFeature>(configuration, peopleHeading, 2212, 2204,
                                   feature::jobRecipientName);
    makeChild<TextEntryUIFeature>(configuration, messagesHeading, 2213, 2206,
                                  feature::jobSheetMessage);
    makeChild<TextEntryUIFeature>(configuration, messagesHeading, 2214, 2207,
                                  feature::jobMessageToOperator);
    makeChild<TextEntryUIFeature>(configuration, peopleHeading, 2211, 2205,
                                  feature::jobPhoneNumber);
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
