#pragma once

#include <memory>

#include "ocore/Capabilities/Capabilities.h"
#include "ocore/Models/PrinterModel.h"
#include "ocore/Printer/PrinterDefaults.h"
#include "ocore/User/UserPreferences.h"

namespace zent {

class PersistentSettings;
class Stream;
struct UserContext;

/// A printer: creates its model, defaults and capabilities on first need and owns them. They belong
/// to the one thread that uses the printer at a time.
class Printer {
public:
    virtual ~Printer();
    Printer(const Printer&) = delete;
    Printer& operator=(const Printer&) = delete;

    virtual std::unique_ptr<UserPreferences> getUserPreferences() const = 0;
    /// 1 for the ordo document; every other number stands for the stream of comment lines.
    virtual std::uint32_t getInstructionForm() = 0;

    const Capabilities& getCapabilities();
    const PrinterDefaults& getDefaults();
    const PrinterModel& getModel();
    CXString getDisplayName() { return getModel().getDisplayName(); }

    /// Writes the logon name and what the user prefers to do with it into a state blob. False, and
    /// nothing changed, if there is no logon name.
    bool updateUserContext(PersistentSettings& state) const;
    /// Writes the printing instructions for a document of the job in a state blob, in the form that
    /// the printer takes. The job's name, sender and recipient are put in as the user context of
    /// the blob says; the document's name may be empty.
    void generateInstructions(PersistentSettings& state, Stream& target,
                              const CXString& documentName);

protected:
    Printer();
    virtual std::unique_ptr<Capabilities> createCapabilities() = 0;
    virtual std::unique_ptr<PrinterModel> createModel() = 0;

private:
    void applyUserContext(FeatureSettings& settings, const UserContext& context,
                          const CXString& documentName);
    void setCut(FeatureSettings& settings, const _FI& feature, const CXString& text);

    // The members are destroyed in the reverse order: the model first.
    std::unique_ptr<Capabilities> m_capabilities;
    std::unique_ptr<PrinterDefaults> m_defaults;
    std::unique_ptr<PrinterModel> m_model;
};

} // namespace zent
