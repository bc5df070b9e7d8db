#pragma once

#include "ocore/FeatureSettings/FeatureEnum.h"

/// The features and values that the ticket stream has to know by number, besides those that the
/// whole library does.
namespace zent::ajt {

namespace feature {
using namespace zent::feature;
constexpr FeatureEnum highlightMapColor = 45;
constexpr FeatureEnum highlightMap = 46;
constexpr FeatureEnum highlightColorantMismatch = 47;
constexpr FeatureEnum separatorSheetsType = 87;
constexpr FeatureEnum forceFrontSide = 91;
constexpr FeatureEnum mediaOrderCount = 103;
constexpr FeatureEnum coverType = 114;
constexpr FeatureEnum insertAfterPageNumber = 117;
constexpr FeatureEnum insertCount = 118;
} // namespace feature

namespace value {
using namespace zent::value;
constexpr std::int32_t uncollated = 3;
constexpr std::int32_t twoSidedLongEdge = 5;
constexpr std::int32_t twoSidedShortEdge = 6;
constexpr std::int32_t impositionSignature = 8;
constexpr std::int32_t saveOnly = 10;
constexpr std::int32_t printSave = 11;
constexpr std::int32_t rotate90 = 22;
constexpr std::int32_t rotate180 = 23;
constexpr std::int32_t rotate270 = 24;
constexpr std::int32_t colorantRed = 65; // the first of highlight-colorant
constexpr std::int32_t colorantOther = 76;
constexpr std::int32_t mapColorRed = 78; // the first and the last of highlight-map-color
constexpr std::int32_t mapColorOther = 90;
constexpr std::int32_t mapObjectBased = 91;
constexpr std::int32_t mapPictorial = 92;
constexpr std::int32_t mapPresentation = 93;
constexpr std::int32_t mapColorTables = 94;
constexpr std::int32_t mapColorToHighlight = 95;
constexpr std::int32_t mapMonochromeGrayscale = 96;
constexpr std::int32_t mismatchUseReady = 97;
constexpr std::int32_t mismatchHold = 98;
constexpr std::int32_t mismatchAbort = 99;
constexpr std::int32_t printFront = 102;
constexpr std::int32_t printBack = 103;
constexpr std::int32_t printBoth = 104;
constexpr std::int32_t mediaNoColor = 158;
constexpr std::int32_t mediaPink = 160;
constexpr std::int32_t mediaYellow = 161;
constexpr std::int32_t mediaBlue = 162;
constexpr std::int32_t mediaGreen = 163;
constexpr std::int32_t mediaBuff = 164;
constexpr std::int32_t mediaGoldenrod = 165;
constexpr std::int32_t mediaRed = 166;
constexpr std::int32_t mediaTransparency = 171;
constexpr std::int32_t mediaPreCutTabs = 173;
constexpr std::int32_t mediaFullCutTabs = 174;
constexpr std::int32_t mediaPrePrinted = 177;
} // namespace value

} // namespace zent::ajt
