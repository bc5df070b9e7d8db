#include "plugin_ui/Features/JobNameUIFeature.h"

#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/Resources/ResourceLibrary.h"
#include "plugin_ui/Features/JobTextRules.h"
#include "plugin_ui/Reports/UserMessage.h"
#include "resources/ids.h"

namespace zent {

void JobNameUIFeature::updateFeatureWithNewSettings() {
    if (getPreferences().getJobNamePreference()) {
        getTextBox().disable();
        return;
    }
    getTextBox().enable();
    CXString name;
    if (!getSettings()->getString(getFeature(), &name)) {
        name = ResourceLibrary().getString(IDS_JOB_NAME_INITIAL);
        getSettings()->setString(getFeature(), name);
    }
    getTextBox().setText(name);
}

bool JobNameUIFeature::validate(platform::WindowHandle window) {
    if (getPreferences().getJobNamePreference()) {
        return true;
    }
    const Capabilities& capabilities = getCapabilities();
    const JobNameRule rule{
        capabilities.getUpperLimit(getFeature()),
        capabilities.getCharacterSetRestriction(getFeature()),
        !capabilities.isPrinterDefaultAvailable(getFeature(), hasParentFeature())};
    const std::uint32_t fault = findFault(getTextBox().getText(), rule);
    if (fault != noFault) {
        UserMessage(window, IDS_JOB_NAME_TITLE, fault, 0).show();
    }
    return fault == noFault;
}

} // namespace zent
