// A session that is being opened has no silent flag yet to go by, so that the argument itself
// decides whether a failure is shown.

#include <memory>

#include "ZENT_API/Arguments.h"
#include "ZENT_API/CallFrame.h"
#include "ZENT_API/ModuleDirectory.h"

using namespace zent;

extern "C" {

ZentResult ZENT_CALL fnOpenSession(uint32_t version, uint32_t model, uint32_t pdl,
                                   uint32_t instructionForm, ZentBool silent,
                                   const ZentChar* preferencesName, ZentBool useGenericPreferences,
                                   ZentSessionType* session) {
    if (version != ZENT_INTERFACE_VERSION) {
        return ZENT_ERR_VERSION;
    }
    return inFrame(__func__, silent != 0, [&](bool& isSilent) -> ZentResult {
        ZentSessionType& handle = required(session);
        announceModuleDirectory();
        auto opened =
            std::make_unique<ZENTSession>(model, pdl, instructionForm, isSilent,
                                          textOf(preferencesName), useGenericPreferences != 0);
        handle = opened.release()->getHandle();
        return ZENT_OK;
    });
}

ZentResult ZENT_CALL fnCloseSession(ZentSessionType* session) {
    return inFrame(__func__, false, [&](bool& silent) -> ZentResult {
        ZentSessionType& handle = required(session);
        const std::unique_ptr<ZENTSession> closed(&ZENTSession::getSessionObject(handle));
        silent = closed->isSilent();
        handle = nullptr;
        return ZENT_OK;
    });
}

ZentResult ZENT_CALL fnGetTarvoJtSettingsFromSession(ZentSessionType session,
                                                     TarvoJtSettingsType* settings) {
    return inSession(session, __func__, [&](ZENTSession& opened) -> ZentResult {
        required(settings) = ZENTSession::getHandleOf(&opened.settings());
        return ZENT_OK;
    });
}

ZentResult ZENT_CALL fnCreateNewTarvoJtSettings(ZentSessionType session,
                                                TarvoJtSettingsType* settings) {
    return inSession(session, __func__, [&](ZENTSession& /*opened*/) -> ZentResult {
        TarvoJtSettingsType& handle = required(settings);
        try {
            auto made = std::make_unique<FeatureSettings>();
            handle = ZENTSession::getHandleOf(made.release());
        } catch (const std::bad_alloc&) {
            handle = nullptr;
        }
        return ZENT_OK;
    });
}

ZentResult ZENT_CALL fnReleaseTarvoJtSettings(ZentSessionType session,
                                              TarvoJtSettingsType* settings) {
    return inSession(session, __func__, [&](ZENTSession& opened) -> ZentResult {
        TarvoJtSettingsType& handle = required(settings);
        FeatureSettings& object = ZENTSession::getSettingsObject(&handle);
        if (&object != &opened.settings()) {
            const std::unique_ptr<FeatureSettings> released(&object);
            handle = nullptr;
        }
        return ZENT_OK;
    });
}

} // extern "C"
