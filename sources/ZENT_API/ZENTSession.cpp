#include "ZENT_API/ZENTSession.h"

#include "ocore/Exceptions.h"
#include "platform/MemoryProbe.h"

namespace zent {

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

void ZENTSession::noteSettingsChanged(const FeatureSettings& settings) {
    if (&settings == &m_settings) {
        m_exportCache.clear();
    }
}

} // namespace zent
