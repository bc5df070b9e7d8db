#pragma once

#include <exception>

#include "ZENT_API/ZENTSession.h"

namespace zent {

/// Shows a caught exception, unless silent, and gives the result code.
ZentResult endCall(const std::exception& exception, bool silent, const char* function);
/// Shows, unless silent, that something unknown went wrong. True if the exception must travel on
/// into the application, which wants to see it.
bool endUnknownCall(bool silent, const char* function);

/// The frame around every exported call: no exception leaves it (but for what endUnknownCall says),
/// each becomes a result code, and the user hears of it unless the call is silent. `work` takes the
/// silent flag by reference, since most calls know it only once the session is found.
template <typename Work>
ZentResult inFrame(const char* function, bool silentAtFirst, Work work) {
    bool silent = silentAtFirst;
    try {
        return work(silent);
    } catch (const std::exception& exception) {
        return endCall(exception, silent, function);
    } catch (...) {
        if (endUnknownCall(silent, function)) {
            throw;
        }
        return ZENT_ERR_UNKNOWN;
    }
}

/// The frame of a call on a session. `work` takes the session.
template <typename Work>
ZentResult inSession(ZentSessionType handle, const char* function, Work work) {
    return inFrame(function, false, [&](bool& silent) -> ZentResult {
        ZENTSession& session = ZENTSession::getSessionObject(handle);
        silent = session.isSilent();
        return work(session);
    });
}

/// The frame of a call on settings. `work` takes the session and the settings.
template <typename Work>
ZentResult withSettings(ZentSessionType handle, TarvoJtSettingsType settings, const char* function,
                        Work work) {
    return inSession(handle, function, [&](ZENTSession& session) -> ZentResult {
        return work(session, ZENTSession::getSettingsObject(&settings));
    });
}

} // namespace zent
