#pragma once

#include <cstdint>

namespace zent {

/// A feature by number: 2 to 137 are the rows of the feature table. The numbers never change.
using FeatureEnum = std::uint32_t;

/// No feature in particular. It has no row; a value that names it belongs to every feature.
constexpr FeatureEnum TJTF_ANY = 1;

/// The features that the library itself has to know by number.
namespace feature {
constexpr FeatureEnum sides = 4;
constexpr FeatureEnum xSide1ImageShift = 38;
constexpr FeatureEnum ySide1ImageShift = 39;
constexpr FeatureEnum xSide2ImageShift = 40;
constexpr FeatureEnum ySide2ImageShift = 41;
constexpr FeatureEnum xImageShift = 42;
constexpr FeatureEnum yImageShift = 43;
constexpr FeatureEnum xDimension = 99;
constexpr FeatureEnum yDimension = 100;
constexpr FeatureEnum inputDocuments = 115;
constexpr FeatureEnum pages = 116;
constexpr FeatureEnum pageOverrides = 122;
} // namespace feature

} // namespace zent
