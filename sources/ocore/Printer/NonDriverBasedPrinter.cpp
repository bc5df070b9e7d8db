#include "ocore/Printer/NonDriverBasedPrinter.h"

namespace zent {

namespace {
constexpr std::uint32_t formByModel = 3;
} // namespace

NonDriverBasedPrinter::NonDriverBasedPrinter(std::uint32_t model, std::uint32_t pdl,
                                             std::uint32_t instructionForm,
                                             const CXString& preferencesName,
                                             bool useGenericPreferences)
    : m_model(model), m_pdl(pdl), m_instructionForm(instructionForm),
      m_preferencesName(preferencesName), m_useGenericPreferences(useGenericPreferences) {}

std::unique_ptr<UserPreferences> NonDriverBasedPrinter::getUserPreferences() const {
    if (!m_preferencesName.isEmpty()) {
        return std::make_unique<UserPreferences>(m_preferencesName);
    }
    if (!m_useGenericPreferences) {
        return std::make_unique<UserPreferences>(PrinterModel(m_model, m_pdl).getDriverName());
    }
    return std::make_unique<UserPreferences>(
        CXString(u"Tarvo Production Printer User Preferences (Non-Driver)"));
}

std::uint32_t NonDriverBasedPrinter::getInstructionForm() {
    if (m_instructionForm == formByModel) {
        m_instructionForm = getModel().takesOrdo() ? 1 : 2;
    }
    return m_instructionForm;
}

std::unique_ptr<Capabilities> NonDriverBasedPrinter::createCapabilities() {
    return std::make_unique<Capabilities>(getModel(), getInstructionForm());
}

std::unique_ptr<PrinterModel> NonDriverBasedPrinter::createModel() {
    return std::make_unique<PrinterModel>(m_model, m_pdl);
}

} // namespace zent
