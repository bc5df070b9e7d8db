#pragma once

#include "plugin_ui/Features/AccountUIFeature.h"
#include "plugin_ui/Features/DialogLaunchButtonUIFeature.h"

namespace zent {

/// Names a job and the people it concerns: the name, the account, sender, recipient, and messages.
class JobNotesUIFeature : public UIFeature {
public:
    JobNotesUIFeature(UIConfiguration& configuration, FeatureEnum parentFeature);

    /// Where the dialog of the account is offered, its box on the page goes.
    bool isSupported() override;
    void updateFeatureWithNewSettings() override {}
    void handleSubjectUpdate(std::uint16_t /*subjectId*/) override {}

private:
    const DialogLaunchButtonUIFeature* m_accountButton;
    const AccountUIFeature* m_accountEntry;
};

} // namespace zent
