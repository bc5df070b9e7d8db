#include "ocore/FeatureSettings/CapabilityDataBase.h"

#include <algorithm>

#include "ocore/Faults/Exceptions.h"
#include "ocore/FeatureSettings/CapabilityTable.h"
#include "ocore/FeatureSettings/FeatureDataBase.h"
#include "ocore/FeatureSettings/NestedIDText.h"
#include "platform/KeepForever.h"

namespace zent {

namespace {

// The role of a parent that names a capability. It differs from that of a parent that names a
// feature.
constexpr std::uint32_t namingRole = 2;

/// The rows by feature and type, which is how they are authored.
using CapabilityStore = std::vector<CapabilityInfo>;

CapabilityStore buildStore() {
    CapabilityStore built;
    for (const CapabilityRow& row : getCapabilityRows()) {
        built.push_back({row.feature, makeNestedAttrID(row.leaf, row.parents, namingRole),
                         row.definedBy, row.type, SyntaxList(row.syntaxes)});
    }
    return built;
}

/// Built at its first need, once for all threads. A build that fails is tried again.
const CapabilityStore& store() {
    static const auto& built = keepForever<CapabilityStore>(buildStore());
    return built;
}

const CapabilityInfo* findInfo(FeatureEnum feature, std::uint32_t type) {
    const std::span<const CapabilityInfo> rows = CapabilityDataBase().getRows(feature);
    const auto found = std::ranges::find(rows, type, &CapabilityInfo::m_type);
    return found == rows.end() ? nullptr : &*found;
}

} // namespace

CapabilityDataBase::CapabilityDataBase() { store(); }

std::span<const CapabilityInfo> CapabilityDataBase::getRows(FeatureEnum feature) const {
    // Not equal_range: clang 14 can't compile the range that it gives.
    const auto& rows = store();
    return {std::ranges::lower_bound(rows, feature, {}, &CapabilityInfo::m_feature),
            std::ranges::upper_bound(rows, feature, {}, &CapabilityInfo::m_feature)};
}

bool CapabilityDataBase::hasCapability(FeatureEnum feature, std::uint32_t type) const {
    return findInfo(feature, type) != nullptr;
}

const CapabilityInfo& CapabilityDataBase::getCapabilityInfo(FeatureEnum feature,
                                                            std::uint32_t type) const {
    const CapabilityInfo* const info = findInfo(feature, type);
    if (info == nullptr) {
        const FeatureDataBase features;
        const CXString name = features.hasFeature(feature)
                                  ? features.getFeatureInfo(feature).m_nestedID.getName()
                                  : CXString(u"<unknown>!");
        Raise<UnknownFeatureRequestException>()(
            "CapabilityDataBase::getCapabilityInfo( Feature, Capability type ) could not find "
            "requested capability type '%d' for feature '%d' (%s).\r\n",
            type, feature, name);
    }
    return *info;
}

} // namespace zent
