#pragma once

#include "plugin_ui/UIDialog.h"

namespace zent {

/// The dialog of the account, its user and its data.
class AccountUIDialog : public UIDialog {
public:
    AccountUIDialog(UIConfiguration& configuration, std::uint32_t templateId,
                    FeatureEnum parentFeature);
};

} // namespace zent
