#include "ZENT_API/ZENTSession.h"

#include <utility>

#include "ocore/Faults/Exceptions.h"
#include "platform/MemoryProbe.h"

namespace zent {

// The settings are read back from the blob rather than copied, so that a new ticket is what it will
// be after travelling as a blob.
ZENTSession::ZENTSession(std::uint32_t model, std::uint32_t pdl, std::uint32_t instructionForm,
                         bool silent, const CXString& preferencesName, bool useGenericPreferences)
    : NonDriverBasedPrinter(model, pdl, instructionForm, preferencesName, useGenericPreferences),
      m_silent(silent) {
    m_persistentSettings.setFromAttrNodeList(*getDefaults().getSettings().getAttrNodeList());
    updateUserContext(m_persistentSettings);
    m_persistentSettings.toAttrNodeList(m_settings.getAttrNodeList());
}

ZENTSession& ZENTSession::getSessionObject(ZentSessionType handle) {
    if (!platform::isWritableMemory(handle, sizeof(ZENTSession))) {
        Raise<InvalidZentSessionException>{traceLevel::handleCheck}(
            "ZENTSession::getSessionObject: Opaque session pointer 0x%lx is not a valid session "
            "ojbect.\r\n",
            reinterpret_cast<std::uintptr_t>(handle));
    }
    return *reinterpret_cast<ZENTSession*>(handle);
}

FeatureSettings& ZENTSession::getSettingsObject(const TarvoJtSettingsType* variable) {
    const TarvoJtSettingsType handle = *variable;
    if (!platform::isWritableMemory(handle, sizeof(FeatureSettings))) {
        Raise<InvalidTarvoJtSettingsException>{traceLevel::handleCheck}(
            "ZENTSession::getSettingsObject: Opaque TarvoJtSettingsType pointer 0x%lx is not a "
            "valid FeatureSettings ojbect.\r\n",
            reinterpret_cast<std::uintptr_t>(handle));
    }
    return *reinterpret_cast<FeatureSettings*>(handle);
}

PersistentSettings& ZENTSession::currentState() {
    if (!m_stateCurrent) {
        m_persistentSettings.setFromAttrNodeList(*m_settings.getAttrNodeList());
        m_stateCurrent = true;
    }
    return m_persistentSettings;
}

void ZENTSession::replaceTicket(FeatureSettings&& ticket, const PersistentSettings& state) {
    m_persistentSettings = state;
    m_settings = std::move(ticket);
    m_stateCurrent = false; // composing the blob waits until somebody wants it
}

void ZENTSession::noteDialogAccepted() {
    m_stateCurrent = false;
    updateUserContext(currentState());
}

void ZENTSession::noteSettingsChanged(const FeatureSettings& settings) {
    if (&settings == &m_settings) {
        m_stateCurrent = false;
        m_instructionsCache.clear();
        m_exportCache.clear();
    }
}

} // namespace zent
