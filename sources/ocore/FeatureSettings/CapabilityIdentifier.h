#pragma once

#include <vector>

#include "ocore/FeatureSettings/CapabilityInfo.h"
#include "ocore/FeatureSettings/SettingIdentifier.h"

namespace zent {

/// Capability identifier: the handle of one capability of a feature. Capabilities are read and
/// written with it in a Settings by the same calls as features are with _FI.
class _CI final : public _SI {
public:
    /// Takes a pair without checking it: the first query about one that isn't in the table raises.
    _CI(FeatureEnum feature, std::uint32_t type)
        : _SI(feature, Kind::capability), m_capabilityType(type) {}

    const AttrID& getAttrID() const override { return getNestedAttrID().getAttrID(); }
    const NestedAttrID& getNestedAttrID() const override { return getInfo().m_nestedID; }
    const CXString& getName() const override { return getNestedAttrID().getName(); }
    std::unique_ptr<_SI> clone() const override { return std::make_unique<_CI>(*this); }
    bool isEqual(const _SI& other) const override;
    const SyntaxList& getSyntaxes() const override { return getInfo().m_syntaxes; }

    std::uint32_t getCapabilityType() const { return m_capabilityType; }

    static bool hasCapability(FeatureEnum feature, std::uint32_t type);
    /// The types of a feature, in row order; of one class only, if given.
    static std::vector<std::uint32_t> getCapabilityTypes(FeatureEnum feature);
    static std::vector<std::uint32_t> getCapabilityTypes(FeatureEnum feature,
                                                         std::uint32_t definedBy);

private:
    const CapabilityInfo& getInfo() const;

    std::uint32_t m_capabilityType;
};

} // namespace zent
