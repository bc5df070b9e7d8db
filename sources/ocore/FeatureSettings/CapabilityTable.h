#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "ocore/FeatureSettings/FeatureEnum.h"

namespace zent {

/// One capability as it is authored; CapabilityDataBase makes a CapabilityInfo of it.
struct CapabilityRow {
    FeatureEnum feature;
    std::uint32_t type;
    const char16_t* leaf;
    const char16_t* parents;                 // as makeNestedAttrID() takes them
    std::uint32_t definedBy;                 // a capabilityClass
    std::array<const char16_t*, 3> syntaxes; // null where there is none
};

/// All capabilities, by feature, those of one feature in the order of their types.
std::span<const CapabilityRow> getCapabilityRows();

} // namespace zent
