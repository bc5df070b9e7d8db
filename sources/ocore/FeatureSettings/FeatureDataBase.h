#pragma once

#include "ocore/FeatureSettings/FeatureInfo.h"

namespace zent {

/// The fixed table of all features. Whoever needs it makes one of these on the stack: the table is
/// a single store, built by the first handle under a lock, and never changes after that, so that
/// lookups take no lock. Numbers, ids and abbreviations compare exactly.
///
/// A lookup that fails raises UnknownFeatureRequestException; an empty id raises
/// InvalidAttributeIdException. The "find" and "has" lookups never fail.
class FeatureDataBase {
public:
    FeatureDataBase();

    const FeatureInfo& getFeatureInfo(FeatureEnum feature) const;
    const FeatureInfo& getFeatureInfo(const CXString& uniqueID) const;

    /// These give null if there is none.
    const FeatureInfo* findFeatureInfo(const CXString& uniqueID) const;
    const FeatureInfo* findFeatureInfoByAbbreviation(const CXString& abbreviation) const;

    bool hasFeature(FeatureEnum feature) const;
    bool hasUniqueID(const CXString& uniqueID) const;
};

} // namespace zent
