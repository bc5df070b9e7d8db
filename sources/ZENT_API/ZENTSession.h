#pragma once

#include "ZENT_API/CachedOutput.h"
#include "ocore/FeatureSettings/FeatureSettings.h"
#include "zent27.h"

namespace zent {

/// What is behind a session handle: the live ticket, and results that haven't been fetched yet.
///
/// The handle is the object's plain address. The address of the settings is what
/// fnGetTarvoJtSettingsFromSession hands out, and stays as it is for the session's life.
class ZENTSession {
public:
    explicit ZENTSession(bool silent) : m_silent(silent) {}
    ZENTSession(const ZENTSession&) = delete;
    ZENTSession& operator=(const ZENTSession&) = delete;

    /// The object behind a handle. Null, and memory that isn't mapped or not writable, raises
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

    /// Every call that changes settings ends with this: if they are the session's own, what was
    /// generated from them is dropped.
    void noteSettingsChanged(const FeatureSettings& settings);

private:
    bool m_silent;
    FeatureSettings m_settings;
    CachedOutput m_exportCache;
};

} // namespace zent
