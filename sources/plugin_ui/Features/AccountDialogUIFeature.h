#pragma once

#include "plugin_ui/Features/AccountUIFeature.h"

namespace zent {

/// Asks for all that a printer's accounting can want: the account, its user, and further data.
class AccountDialogUIFeature : public UIFeature {
public:
    AccountDialogUIFeature(UIConfiguration& configuration, FeatureEnum parentFeature);

    /// A printer that knows the account alone needs no dialog: that fits on the page of job notes.
    bool isSupported() override;
    void updateFeatureWithNewSettings() override {}
    void handleSubjectUpdate(std::uint16_t /*subjectId*/) override {}

private:
    const AccountUIFeature* m_user;
    const AccountUIFeature* m_data;
};

} // namespace zent
