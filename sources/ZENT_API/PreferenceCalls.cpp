#include <memory>

#include "ZENT_API/Arguments.h"
#include "ZENT_API/CachedOutput.h"
#include "ZENT_API/CallFrame.h"

using namespace zent;

namespace {

/// The frame of a call on the preference set that the session's printer uses. `work` takes the
/// preferences and the name.
template <typename Work>
ZentResult withPreference(ZentSessionType session, const ZentChar* name, const char* function,
                          Work work) {
    return inSession(session, function, [&](ZENTSession& opened) -> ZentResult {
        return work(*opened.getUserPreferences(), textOf(name));
    });
}

} // namespace

extern "C" {

ZentResult ZENT_CALL fnGetPreferenceBoolValue(ZentSessionType session, const ZentChar* name,
                                              ZentBool* value, ZentBool defaultValue) {
    return withPreference(
        session, name, __func__,
        [&](const UserPreferences& preferences, const CXString& preference) -> ZentResult {
            const bool otherwise = defaultValue != 0;
            required(value) = preferences.getBooleanPreference(preference, &otherwise);
            return ZENT_OK;
        });
}

ZentResult ZENT_CALL fnGetPreferenceNumberValue(ZentSessionType session, const ZentChar* name,
                                                int32_t* value, int32_t defaultValue) {
    return withPreference(
        session, name, __func__,
        [&](const UserPreferences& preferences, const CXString& preference) -> ZentResult {
            required(value) = preferences.getLongPreference(preference, &defaultValue);
            return ZENT_OK;
        });
}

ZentResult ZENT_CALL fnGetPreferenceStringValue(ZentSessionType session, const ZentChar* name,
                                                ZentChar* buffer, uint32_t* size,
                                                const ZentChar* defaultValue) {
    return withPreference(
        session, name, __func__,
        [&](const UserPreferences& preferences, const CXString& preference) -> ZentResult {
            uint32_t& units = required(size);
            const CXString otherwise = textOf(defaultValue);
            const CXString text = preferences.getStringPreference(
                preference, defaultValue != nullptr ? &otherwise : nullptr);
            return handOutText(text, buffer, units);
        });
}

ZentResult ZENT_CALL fnGetPreferenceDataValue(ZentSessionType session, const ZentChar* name,
                                              void* buffer, uint32_t* size, const void* defaultData,
                                              uint32_t defaultLength) {
    return withPreference(
        session, name, __func__,
        [&](const UserPreferences& preferences, const CXString& preference) -> ZentResult {
            uint32_t& bytes = required(size);
            const bool hasDefault = defaultData != nullptr && defaultLength != 0;
            const ByteBuffer otherwise(defaultData, hasDefault ? defaultLength : 0);
            const ByteBuffer data =
                preferences.getDataPreference(preference, hasDefault ? &otherwise : nullptr);
            return handOutBytes(data, buffer, bytes);
        });
}

ZentResult ZENT_CALL fnSetPreferenceBoolValue(ZentSessionType session, const ZentChar* name,
                                              ZentBool value) {
    return withPreference(
        session, name, __func__,
        [&](const UserPreferences& preferences, const CXString& preference) -> ZentResult {
            preferences.setBooleanPreference(preference, value != 0);
            return ZENT_OK;
        });
}

ZentResult ZENT_CALL fnSetPreferenceNumberValue(ZentSessionType session, const ZentChar* name,
                                                int32_t value) {
    return withPreference(
        session, name, __func__,
        [&](const UserPreferences& preferences, const CXString& preference) -> ZentResult {
            preferences.setLongPreference(preference, value);
            return ZENT_OK;
        });
}

ZentResult ZENT_CALL fnSetPreferenceStringValue(ZentSessionType session, const ZentChar* name,
                                                const ZentChar* value) {
    return withPreference(
        session, name, __func__,
        [&](const UserPreferences& preferences, const CXString& preference) -> ZentResult {
            preferences.setStringPreference(preference, textOf(value));
            return ZENT_OK;
        });
}

ZentResult ZENT_CALL fnSetPreferenceDataValue(ZentSessionType session, const ZentChar* name,
                                              const void* data, uint32_t length) {
    return withPreference(
        session, name, __func__,
        [&](const UserPreferences& preferences, const CXString& preference) -> ZentResult {
            preferences.setDataPreference(preference, bytesOf(data, length));
            return ZENT_OK;
        });
}

} // extern "C"
