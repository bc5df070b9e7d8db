#include "plugin_ui/Features/AccountUIFeature.h"

#include "ocore/FeatureSettings/FeatureEnum.h"
#include "plugin_ui/Features/JobTextRules.h"
#include "plugin_ui/Reports/UserMessage.h"
#include "resources/ids.h"

namespace zent {

void AccountUIFeature::initializeFeature() {
    std::int32_t lower = 0;
    std::int32_t upper = 0;
    getCapabilities().getFeatureCapabilities(getFeature(), lower, upper);
    getTextBox().setMaxLength(static_cast<std::uint32_t>(upper));
}

bool AccountUIFeature::isRequired() const {
    return getFeature().getFeature() == feature::jobAccountID &&
           getPreferences().getAccountRequiredPreference();
}

bool AccountUIFeature::validate(platform::WindowHandle window) {
    if (!TextEntryUIFeature::validate(window)) {
        return false;
    }
    AccountRule rule;
    std::int32_t upper = 0;
    getCapabilities().getFeatureCapabilities(getFeature(), rule.minimumLength, upper);
    rule.restriction = getCapabilities().getCharacterSetRestriction(getFeature());
    rule.isRequired = isRequired();
    const std::uint32_t fault = findFault(getTextBox().getText(), rule);
    if (fault != noFault) {
        UserMessage(window, IDS_ACCOUNT_TITLE, fault, 0).show();
    }
    return fault == noFault;
}

} // namespace zent
