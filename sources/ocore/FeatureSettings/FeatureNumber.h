#pragma once

#include <cstdint>

namespace zent {

namespace feature {
enum Number : std::uint32_t;
}

/// A feature by number. FeatureEnum.h has all their names; what only hands numbers on is not
/// compiled anew when a feature is added.
using FeatureEnum = feature::Number;

/// No feature in particular; a value that names it belongs to all.
constexpr auto TJTF_ANY = static_cast<FeatureEnum>(1);

namespace value {
enum Number : std::int32_t;
constexpr std::int32_t firstRunTimeValue = 553; // the number after those of the tables
} // namespace value

} // namespace zent
