#pragma once

#include "ocore/CriticalResource.h"
#include "ocore/FeatureSettings/FeatureValueInfo.h"

namespace zent {

/// The table of the values that features can take. Like FeatureDataBase a handle on one static
/// store, but this one grows: a value that a ticket brings along gets a number at run time. So
/// every lookup and addition holds the table's lock for the duration of the call. Rows are never
/// moved or removed, and references stay valid.
///
/// A lookup that fails raises UnknownFeatureRequestException; the "find" and "has" lookups never
/// fail.
class FeatureValueDataBase {
public:
    /// Run-time values last for the life of the library, so tickets from outside may bring only so
    /// many, and of bounded length.
    static constexpr std::int32_t firstRunTimeValue = 553;
    static constexpr std::int32_t maximumRunTimeValues = 65536;
    static constexpr std::int32_t maximumRunTimeLength = 4096;

    const FeatureValueInfo& getFeatureValueInfo(std::int32_t value) const;
    const FeatureValueInfo& getFeatureValueInfo(FeatureEnum feature, const CXString& text) const;
    const FeatureValueInfo& getFeatureValueInfoByAbbreviation(const CXString& abbreviation) const;

    /// These give null if there is none.
    const FeatureValueInfo* findFeatureValueInfo(FeatureEnum feature, const CXString& text) const;
    const FeatureValueInfo* findFeatureValueInfoByAbbreviation(const CXString& abbreviation) const;

    bool hasValue(std::int32_t value) const;
    bool hasFeatureValue(FeatureEnum feature, const CXString& text) const;
    bool hasAbbreviation(const CXString& abbreviation) const;

    /// The lock, for a caller that must look up and add in one go.
    static CriticalResource& getCriticalResource();
    /// Adds a row, for FeatureValue::createNewValueEnum() only.
    void addValue(const FeatureValueInfo& info);
    /// Raises what getFeatureValueInfo() does for a value that isn't there.
    [[noreturn]] static void raiseUnknownValue(FeatureEnum feature, const CXString& text);
};

} // namespace zent
