// Most sessions never ask for more than a part of what a printer can tell, and capabilities are
// dear to read. So each part is made when it is first needed.

#include "ocore/Printer/Printer.h"

#include "ocore/Compress/PersistentSettings.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/Printer/CreateStreamTranslator.h"
#include "ocore/User/User.h"
#include "platform/Surrogates.h"

namespace zent {

Printer::Printer() = default;

Printer::~Printer() = default;

const Capabilities& Printer::getCapabilities() {
    if (m_capabilities == nullptr) {
        m_capabilities = createCapabilities();
    }
    return *m_capabilities;
}

const PrinterDefaults& Printer::getDefaults() {
    if (m_defaults == nullptr) {
        m_defaults = std::make_unique<PrinterDefaults>(getModel(), getInstructionForm());
    }
    return *m_defaults;
}

const PrinterModel& Printer::getModel() {
    if (m_model == nullptr) {
        m_model = createModel();
    }
    return *m_model;
}

bool Printer::updateUserContext(PersistentSettings& state) const {
    const CXString logonName = User::getLogonName();
    if (logonName.isEmpty()) {
        return false;
    }
    const std::unique_ptr<UserPreferences> preferences = getUserPreferences();
    state.setUserContext({logonName, preferences->getJobNamePreference(),
                          preferences->getUseLogonNamePreference(),
                          preferences->getUseLogonNameForRecipientPreference()});
    return true;
}

void Printer::generateInstructions(PersistentSettings& state, Stream& target,
                                   const CXString& documentName) {
    AttrNodeList list;
    state.toAttrNodeList(&list);
    FeatureSettings settings(&list);
    applyUserContext(settings, state.getUserContext(), documentName);
    createStreamTranslator(getCapabilities(), getInstructionForm())->translate(list, target);
}

void Printer::applyUserContext(FeatureSettings& settings, const UserContext& context,
                               const CXString& documentName) {
    if (context.useDocumentName) {
        setCut(settings, _FI(feature::jobName), documentName);
    }
    if (context.useLogonName) {
        setCut(settings, _FI(feature::requestingUserName), context.logonName);
    }
    if (context.useLogonNameRecipient) {
        setCut(settings, _FI(feature::jobRecipientName), context.logonName);
    }
}

/// Sets a text, cut to what the printer takes. An empty one changes nothing.
void Printer::setCut(FeatureSettings& settings, const _FI& feature, const CXString& text) {
    if (!text.isEmpty()) {
        const std::uint32_t limit = getCapabilities().getUpperLimit(feature);
        settings.setString(feature, platform::cutText(text, limit));
    }
}

} // namespace zent
