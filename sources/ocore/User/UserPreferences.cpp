// Well-known preferences have a type that can't be asked for otherwise: a wrong type is a mistake
// of the caller, and is raised, whereas a value that isn't stored just gives a default.

#include "ocore/User/UserPreferences.h"

#include <algorithm>

#include "ocore/Faults/Exceptions.h"
#include "ocore/User/User.h"
#include "platform/KeepForever.h"

namespace zent {

namespace {

const CXString& keyPrefix =
    keepForever<CXString>(u"SOFTWARE\\Tarvo\\Tarvo Production Printing Services\\");

constexpr const char16_t* jobName = u"JOB_NAME_PREFERENCE";
constexpr const char16_t* accountRequired = u"ACCOUNT_REQUIRED_PREFERENCE";
constexpr const char16_t* accountNumberInTicket = u"ACCT_NUMBER_IN_JT_PREFERENCE";
constexpr const char16_t* useLogonName = u"USE_LOGON_NAME_PREFERENCE";
constexpr const char16_t* useLogonNameForRecipient = u"USE_LOGON_NAME_PREFERENCE_RECIPIENT";
constexpr const char16_t* genericTicket = u"GENERIC_JT_PREFERENCE";
constexpr const char16_t* preferredTicket = u"PREFERRED_JOB_TICKET";
constexpr const char16_t* customPaperSizeUnit = u"CUSTOM_PAPER_SIZE_PREFERENCE";
constexpr const char16_t* imageShiftUnit = u"IMAGE_SHIFT_UNIT_PREFERENCE";
constexpr const char16_t* toolBar = u"TOOL_BAR_PREFERENCE";

constexpr std::int32_t unitInches = 1;
constexpr std::int32_t unitMetric = 2;

std::vector<PreferenceInfo> makeWellKnownPreferences() {
    const ByteBuffer yes = ByteBuffer::fromBool(true);
    const ByteBuffer no = ByteBuffer::fromBool(false);
    const ByteBuffer one = ByteBuffer::fromLong(1);
    namespace type = preferenceType;
    return {
        {jobName, type::boolean, yes},
        {accountRequired, type::boolean, no},
        {accountNumberInTicket, type::boolean, no},
        {useLogonName, type::boolean, yes},
        {useLogonNameForRecipient, type::boolean, yes},
        {genericTicket, type::boolean, yes},
        {preferredTicket, type::text, ByteBuffer()},
        // For units these defaults have no effect: the locale decides.
        {customPaperSizeUnit, type::unitOfMeasure, one},
        {imageShiftUnit, type::unitOfMeasure, one},
        {toolBar, type::number, one},
    };
}

bool fits(std::uint32_t dataType, std::uint32_t wanted) {
    return dataType == wanted ||
           (dataType == preferenceType::unitOfMeasure && wanted == preferenceType::number);
}

std::int32_t getDefaultLong(const PreferenceInfo& info) {
    if (info.dataType == preferenceType::unitOfMeasure) {
        return User::usesInches() ? unitInches : unitMetric;
    }
    return info.value.getAsLongValue();
}

} // namespace

UserPreferences::UserPreferences(const CXString& setName)
    : m_registryKey(keyPrefix + setName), m_wellKnownPreferences(makeWellKnownPreferences()) {}

const PreferenceInfo* UserPreferences::findWellKnown(const CXString& name) const {
    const auto found =
        std::find_if(m_wellKnownPreferences.begin(), m_wellKnownPreferences.end(),
                     [&name](const PreferenceInfo& info) { return info.name == name; });
    return found != m_wellKnownPreferences.end() ? &*found : nullptr;
}

/// The well-known preference of that name, if any; raises if it can't be had as that type.
const PreferenceInfo* UserPreferences::requireType(const char16_t* caller, const CXString& name,
                                                   std::uint32_t type) const {
    const PreferenceInfo* info = findWellKnown(name);
    if (info != nullptr && !fits(info->dataType, type)) {
        Raise<PreferenceDataTypeMismatchException>()(
            "UserPreferences::%s(%s): Called for a well-known preference that is of a different "
            "type (%s). Call the appropriate method.\r\n",
            caller, name, info->getDataTypeText());
    }
    return info;
}

bool UserPreferences::getBooleanPreference(const CXString& name, const bool* defaultValue) const {
    const PreferenceInfo* info =
        requireType(u"getBooleanPreference", name, preferenceType::boolean);
    const bool fallback = defaultValue != nullptr ? *defaultValue
                          : info != nullptr       ? info->value.getAsBoolValue()
                                                  : false;
    return m_registry.getLongValue(m_registryKey, name, fallback ? 1 : 0) > 0;
}

std::int32_t UserPreferences::getLongPreference(const CXString& name,
                                                const std::int32_t* defaultValue) const {
    const PreferenceInfo* info = requireType(u"getLongPreference", name, preferenceType::number);
    const std::int32_t fallback = defaultValue != nullptr ? *defaultValue
                                  : info != nullptr       ? getDefaultLong(*info)
                                                          : 0;
    return m_registry.getLongValue(m_registryKey, name, fallback);
}

CXString UserPreferences::getStringPreference(const CXString& name,
                                              const CXString* defaultValue) const {
    const PreferenceInfo* info = requireType(u"getStringPreference", name, preferenceType::text);
    const CXString fallback = defaultValue != nullptr ? *defaultValue
                              : info != nullptr       ? info->value.getAsString()
                                                      : CXString();
    return m_registry.getStringValue(m_registryKey, name, fallback);
}

ByteBuffer UserPreferences::getDataPreference(const CXString& name,
                                              const ByteBuffer* defaultValue) const {
    const PreferenceInfo* info = requireType(u"getDataPreference", name, preferenceType::rawData);
    const ByteBuffer fallback = defaultValue != nullptr ? *defaultValue
                                : info != nullptr       ? info->value
                                                        : ByteBuffer();
    return m_registry.getDataValue(m_registryKey, name, fallback);
}

void UserPreferences::setBooleanPreference(const CXString& name, bool value) const {
    requireType(u"setBooleanPreference", name, preferenceType::boolean);
    m_registry.setLongValue(m_registryKey, name, value ? 1 : 0);
}

void UserPreferences::setLongPreference(const CXString& name, std::int32_t value) const {
    requireType(u"setLongPreference", name, preferenceType::number);
    m_registry.setLongValue(m_registryKey, name, value);
}

void UserPreferences::setStringPreference(const CXString& name, const CXString& value) const {
    requireType(u"setStringPreference", name, preferenceType::text);
    m_registry.setStringValue(m_registryKey, name, value);
}

void UserPreferences::setDataPreference(const CXString& name, const ByteBuffer& value) const {
    requireType(u"setDataPreference", name, preferenceType::rawData);
    m_registry.setDataValue(m_registryKey, name, value);
}

bool UserPreferences::getJobNamePreference() const { return getBooleanPreference(jobName); }

bool UserPreferences::getAccountRequiredPreference() const {
    return getBooleanPreference(accountRequired);
}

bool UserPreferences::getAccountNumberInTicketPreference() const {
    return getBooleanPreference(accountNumberInTicket);
}

bool UserPreferences::getUseLogonNamePreference() const {
    return getBooleanPreference(useLogonName);
}

bool UserPreferences::getUseLogonNameForRecipientPreference() const {
    return getBooleanPreference(useLogonNameForRecipient);
}

bool UserPreferences::getGenericTicketPreference() const {
    return getBooleanPreference(genericTicket);
}

CXString UserPreferences::getPreferredTicketPreference() const {
    return getStringPreference(preferredTicket);
}

std::int32_t UserPreferences::getCustomPaperSizeUnitPreference() const {
    return getLongPreference(customPaperSizeUnit);
}

std::int32_t UserPreferences::getImageShiftUnitPreference() const {
    return getLongPreference(imageShiftUnit);
}

std::int32_t UserPreferences::getToolBarPreference() const { return getLongPreference(toolBar); }

} // namespace zent
