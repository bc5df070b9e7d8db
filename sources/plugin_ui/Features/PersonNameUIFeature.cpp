#include "plugin_ui/Features/PersonNameUIFeature.h"

#include "ocore/User.h"

namespace zent {

bool PersonNameUIFeature::isLogonNamePreferred() const {
    return getFeature().getFeature() == feature::requestingUserName
               ? getPreferences().getUseLogonNamePreference()
               : getPreferences().getUseLogonNameForRecipientPreference();
}

void PersonNameUIFeature::updateFeatureWithNewSettings() {
    const bool isPreferred = isLogonNamePreferred();
    if (isPreferred) {
        writeText(User::getLogonName());
    }
    getTextBox().setText(readText());
    getTextBox().setEnabled(!isPreferred);
}

} // namespace zent
