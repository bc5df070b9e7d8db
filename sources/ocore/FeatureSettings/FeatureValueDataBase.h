#pragma once

#include "ocore/FeatureSettings/RunTimeValues.h"

namespace zent {

/// The table of the values that features can take. Like FeatureDataBase a handle on one static
/// store of fixed rows; but this table grows as well: a value that a ticket brings along gets a
/// number at run time.
///
/// A lookup that fails raises UnknownFeatureRequestException; the "find" and "has" lookups never
/// fail.
class FeatureValueDataBase {
public:
    /// Tickets from outside may bring values of bounded length.
    static constexpr std::int32_t maximumRunTimeLength = 4096;

    FeatureValueDataBase();

    FeatureValueReference getFeatureValueInfo(std::int32_t value) const;
    FeatureValueReference getFeatureValueInfo(FeatureEnum feature, const CXString& text) const;

    /// These give no row if there is none.
    FeatureValueReference findFeatureValueInfo(std::int32_t value) const;
    FeatureValueReference findFeatureValueInfo(FeatureEnum feature, const CXString& text) const;
    const FeatureValueInfo* findFeatureValueInfoByAbbreviation(const CXString& abbreviation) const;

    bool hasValue(std::int32_t value) const;
    bool hasFeatureValue(FeatureEnum feature, const CXString& text) const;
    bool hasAbbreviation(const CXString& abbreviation) const;

    /// Adds a row of the run time, for FeatureValue::createNewValueEnum() only, which holds the
    /// lock of RunTimeValues.
    FeatureValueReference addValue(const FeatureValueInfo& info);
    /// Raises what getFeatureValueInfo() does for a value that isn't there.
    [[noreturn]] static void raiseUnknownValue(std::int32_t value);
    [[noreturn]] static void raiseUnknownValue(FeatureEnum feature, const CXString& text);
};

} // namespace zent
