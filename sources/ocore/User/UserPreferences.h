#pragma once

#include <cstdint>
#include <vector>

#include "ocore/Resources/ByteBuffer.h"
#include "ocore/Text/CXString.h"
#include "ocore/User/PreferenceInfo.h"
#include "ocore/User/Registry.h"

namespace zent {

/// A named set of the user's preferences. The well-known ones have a type and a default of their
/// own; any other name is free for the application's use, with a value of any type.
///
/// A getter gives the stored value; where there is none, the default that the caller gives; without
/// one (null) that of the well-known preference, which for a unit of measure follows from the
/// user's locale; else false, 0, or nothing. Asking for, or setting, a well-known preference as
/// another type raises PreferenceDataTypeMismatchException; a unit of measure counts as a long. A
/// failing store raises RegistryRequestException.
class UserPreferences {
public:
    /// Opens the set of a name; an empty name stands for the set that all printers share.
    explicit UserPreferences(const CXString& setName);

    /// A stored number above 0 is true.
    bool getBooleanPreference(const CXString& name, const bool* defaultValue = nullptr) const;
    std::int32_t getLongPreference(const CXString& name,
                                   const std::int32_t* defaultValue = nullptr) const;
    CXString getStringPreference(const CXString& name,
                                 const CXString* defaultValue = nullptr) const;
    ByteBuffer getDataPreference(const CXString& name,
                                 const ByteBuffer* defaultValue = nullptr) const;

    void setBooleanPreference(const CXString& name, bool value) const;
    void setLongPreference(const CXString& name, std::int32_t value) const;
    void setStringPreference(const CXString& name, const CXString& value) const;
    void setDataPreference(const CXString& name, const ByteBuffer& value) const;

    // The well-known preferences.
    bool getJobNamePreference() const;
    bool getAccountRequiredPreference() const;
    bool getAccountNumberInTicketPreference() const;
    bool getUseLogonNamePreference() const;
    bool getUseLogonNameForRecipientPreference() const;
    bool getGenericTicketPreference() const;
    CXString getPreferredTicketPreference() const;
    std::int32_t getCustomPaperSizeUnitPreference() const; // 1 inches, 2 metric units
    std::int32_t getImageShiftUnitPreference() const;      // 1 inches, 2 metric units
    std::int32_t getToolBarPreference() const;

    const std::vector<PreferenceInfo>& getWellKnownPreferences() const {
        return m_wellKnownPreferences;
    }

private:
    const PreferenceInfo* findWellKnown(const CXString& name) const;
    const PreferenceInfo* requireType(const char16_t* caller, const CXString& name,
                                      std::uint32_t type) const;

    CXString m_registryKey;
    Registry m_registry;
    std::vector<PreferenceInfo> m_wellKnownPreferences;
};

} // namespace zent
