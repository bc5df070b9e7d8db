#include "ocore/Printer/Printer.h"

#include "ocore/Compress/PersistentSettings.h"
#include "ocore/User.h"

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

} // namespace zent
