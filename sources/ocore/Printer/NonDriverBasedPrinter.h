#pragma once

#include "ocore/Printer/Printer.h"

namespace zent {

/// A printer that is given by numbers rather than found through an installed driver.
class NonDriverBasedPrinter : public Printer {
public:
    NonDriverBasedPrinter(std::uint32_t model, std::uint32_t pdl, std::uint32_t instructionForm,
                          const CXString& preferencesName, bool useGenericPreferences);

    /// The preference set of the given name; without a name, that of the driver, or the generic
    /// set.
    std::unique_ptr<UserPreferences> getUserPreferences() const override;
    /// Form 3 leaves the choice to the model, which settles it for good at the first query.
    std::uint32_t getInstructionForm() override;

protected:
    std::unique_ptr<Capabilities> createCapabilities() override;
    std::unique_ptr<PrinterModel> createModel() override;

private:
    std::uint32_t m_model;
    std::uint32_t m_pdl;
    std::uint32_t m_instructionForm;
    CXString m_preferencesName;
    bool m_useGenericPreferences;
};

} // namespace zent
