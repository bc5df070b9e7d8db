#pragma once

#include "plugin_ui/Features/AccountUIFeature.h"

namespace zent {

/// All that a printer's accounting can ask for: the account, its user, and further data.
class AccountDialogUIFeature : public UIFeature {
public:
    AccountDialogUIFeature(UIConfiguration& configuration, FeatureEnum parentFeature);

    /// Not for a printer that knows the account alone: that fits on the page of job notes.
    bool isSupported() override;
    void updateFeatureWithNewSettings() override {}
    void handleSubjectUpdate(std::uint16_t /*subjectId*/) override {}

private:
    const AccountUIFeature* m_user;
    const AccountUIFeature* m_data;
};

} // namespace zent
