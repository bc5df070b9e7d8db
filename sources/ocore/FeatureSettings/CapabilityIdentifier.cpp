#include "ocore/FeatureSettings/CapabilityIdentifier.h"

#include "ocore/FeatureSettings/CapabilityDataBase.h"

namespace zent {

const CapabilityInfo& _CI::getInfo() const {
    return CapabilityDataBase().getCapabilityInfo(getFeature(), m_capabilityType);
}

bool _CI::isEqual(const _SI& other) const {
    return other.getKind() == getKind() && other.getFeature() == getFeature() &&
           static_cast<const _CI&>(other).m_capabilityType == m_capabilityType;
}

bool _CI::hasCapability(FeatureEnum feature, std::uint32_t type) {
    return CapabilityDataBase().hasCapability(feature, type);
}

std::vector<std::uint32_t> _CI::getCapabilityTypes(FeatureEnum feature) {
    std::vector<std::uint32_t> types;
    for (const CapabilityInfo& row : CapabilityDataBase().getRows(feature)) {
        types.push_back(row.m_type);
    }
    return types;
}

std::vector<std::uint32_t> _CI::getCapabilityTypes(FeatureEnum feature, std::uint32_t definedBy) {
    std::vector<std::uint32_t> types;
    for (const CapabilityInfo& row : CapabilityDataBase().getRows(feature)) {
        if (row.m_class == definedBy) {
            types.push_back(row.m_type);
        }
    }
    return types;
}

} // namespace zent
