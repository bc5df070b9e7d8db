#pragma once

#include <span>
#include <vector>

#include "ocore/FeatureSettings/CapabilityInfo.h"

namespace zent {

/// The fixed table of what printers can say about features: a handle on one static store, built by
/// the first handle under a lock, like FeatureDataBase.
class CapabilityDataBase {
public:
    CapabilityDataBase();

    /// Raises UnknownFeatureRequestException if there is no such pair.
    const CapabilityInfo& getCapabilityInfo(FeatureEnum feature, std::uint32_t type) const;
    bool hasCapability(FeatureEnum feature, std::uint32_t type) const;
    /// All rows of a feature, in the order of their types.
    std::span<const CapabilityInfo> getRows(FeatureEnum feature) const;
};

} // namespace zent
