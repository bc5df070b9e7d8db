#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/FeatureSettings/FeatureInfo.h"

namespace zent {

/// One feature as it is authored; FeatureDataBase makes a FeatureInfo of it.
struct FeatureRow {
    FeatureEnum feature = feature::none;
    const char16_t* leaf = nullptr;
    const char16_t* parents = nullptr; // as makeNestedAttrID() takes them
    const char16_t* abbreviation = nullptr;
    std::array<const char16_t*, 3> syntaxes = {}; // null where there is none
    std::uint32_t supportClass = 0;
    std::uint32_t displayStringID = 0;
    std::array<FeatureEnum, 2> related = {}; // none fills up
    FeatureUnit unit;
};

/// All features, in the order of their numbers, without a gap.
std::span<const FeatureRow> getFeatureRows();

} // namespace zent
