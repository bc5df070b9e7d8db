#include "plugin_ui/Features/PersonNameUIFeature.h"

#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/User/User.h"
#include "platform/Surrogates.h"

namespace zent {

bool PersonNameUIFeature::isLogonNamePreferred() const {
    return getFeature().getFeature() == feature::requestingUserName
               ? getPreferences().getUseLogonNamePreference()
               : getPreferences().getUseLogonNameForRecipientPreference();
}

void PersonNameUIFeature::updateFeatureWithNewSettings() {
    const bool isPreferred = isLogonNamePreferred();
    if (isPreferred) {
        const CXString name = User::getLogonName();
        writeText(CXString(platform::cutText(name, getTextBox().getMaxLength())));
    }
    getTextBox().setText(readText());
    getTextBox().setEnabled(!isPreferred);
}

} // namespace zent
