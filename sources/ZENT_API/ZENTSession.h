#pragma once

#include "ZENT_API/CachedOutput.h"
#include "ocore/Compress/PersistentSettings.h"
#include "ocore/FeatureSettings/FeatureSettings.h"
#include "ocore/Printer/NonDriverBasedPrinter.h"
#include "zent27.h"

namespace zent {

/// The object of a session handle: a printer, the live ticket, the ticket as a state blob, and
/// results that haven't been fetched yet.
///
/// The handle is the object's plain address. The address of the settings is what
/// fnGetTarvoJtSettingsFromSession hands out, and stays as it is for the session's life.
class ZENTSession final : public NonDriverBasedPrinter {
public:
    /// The ticket of a new session holds the printer's defaults. An unknown model raises
    /// IndexOutOfBoundsException; an unknown language fails only where its driver's name is needed.
    ZENTSession(std::uint32_t model, std::uint32_t pdl, std::uint32_t instructionForm, bool silent,
                const CXString& preferencesName, bool useGenericPreferences);

    /// The object of a handle. Null, and memory that isn't mapped or not writable, raises
    /// InvalidZentSessionException; there is no test of what the memory holds.
    static ZENTSession& getSessionObject(ZentSessionType handle);
    /// The same for the settings handle in a variable, with InvalidTarvoJtSettingsException.
    static FeatureSettings& getSettingsObject(const TarvoJtSettingsType* variable);

    ZentSessionType getHandle() { return reinterpret_cast<ZentSessionType>(this); }
    static TarvoJtSettingsType getHandleOf(FeatureSettings* settings) {
        return reinterpret_cast<TarvoJtSettingsType>(settings);
    }

    /// Whether failures are kept from the user.
    bool isSilent() const { return m_silent; }
    FeatureSettings& settings() { return m_settings; }
    CachedOutput& exportCache() { return m_exportCache; }
    CachedOutput& instructionsCache() { return m_instructionsCache; }

    /// The state blob, brought up to date with the settings if need be.
    PersistentSettings& currentState();
    /// A copy of the state blob as it is, for an import to work on: its user context counts, the
    /// ticket in it may be older than the settings.
    PersistentSettings copyState() const { return m_persistentSettings; }
    /// Takes over what an import has made. The caches stay: a result that waits to be fetched is
    /// served as it is.
    void replaceTicket(FeatureSettings&& ticket, const PersistentSettings& state);

    /// The user has accepted what a dialog has made of the settings: the blob takes it over, and
    /// the user's context with it. The caches stay here too.
    void noteDialogAccepted();

    /// Every call that changes settings ends with this: if they are the session's own, what was
    /// generated from them is dropped.
    void noteSettingsChanged(const FeatureSettings& settings);

private:
    bool m_silent;
    PersistentSettings m_persistentSettings;
    FeatureSettings m_settings;
    bool m_stateCurrent = true; // the blob holds the ticket that the settings hold
    CachedOutput m_exportCache;
    CachedOutput m_instructionsCache;
};

} // namespace zent
