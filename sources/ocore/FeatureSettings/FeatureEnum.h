#pragma once

#include <cstdint>

namespace zent {

/// A feature by number: 2 to 137 are the rows of the feature table. The numbers never change.
using FeatureEnum = std::uint32_t;

/// No feature in particular. It has no row; a value that names it belongs to every feature.
constexpr FeatureEnum TJTF_ANY = 1;

/// The features that the library itself has to know by number.
namespace feature {
constexpr FeatureEnum copies = 2;
constexpr FeatureEnum sheetCollate = 3;
constexpr FeatureEnum sides = 4;
constexpr FeatureEnum impositionTemplate = 5;
constexpr FeatureEnum pageRanges = 6;
constexpr FeatureEnum saveDisposition = 7;
constexpr FeatureEnum saveName = 9;
constexpr FeatureEnum formSaveName = 13;
constexpr FeatureEnum formName = 15;
constexpr FeatureEnum jobName = 21;
constexpr FeatureEnum jobAccountID = 22;
constexpr FeatureEnum jobAccountingUserID = 23;
constexpr FeatureEnum jobAccountingData = 24;
constexpr FeatureEnum requestingUserName = 25;
constexpr FeatureEnum jobRecipientName = 26;
constexpr FeatureEnum jobSheetMessage = 27;
constexpr FeatureEnum jobMessageToOperator = 28;
constexpr FeatureEnum jobPhoneNumber = 29;
constexpr FeatureEnum pageRotation = 31;
constexpr FeatureEnum opiImageInsertion = 32;
constexpr FeatureEnum opiImagePreScan = 33;
constexpr FeatureEnum printerResolution = 37;
constexpr FeatureEnum xSide1ImageShift = 38;
constexpr FeatureEnum ySide1ImageShift = 39;
constexpr FeatureEnum xSide2ImageShift = 40;
constexpr FeatureEnum ySide2ImageShift = 41;
constexpr FeatureEnum xImageShift = 42;
constexpr FeatureEnum yImageShift = 43;
constexpr FeatureEnum highlightColorant = 44;
constexpr FeatureEnum colorDeviceCmykBlack = 57;
constexpr FeatureEnum undefinedSourceRgbImages = 66;
constexpr FeatureEnum colorDestinationProfileBack = 77;
constexpr FeatureEnum trcName = 81;
constexpr FeatureEnum finishings = 86;
constexpr FeatureEnum finishingTemplate = 88;
constexpr FeatureEnum pagesPerSubset = 90;
constexpr FeatureEnum media = 97;
constexpr FeatureEnum mediaKey = 98;
constexpr FeatureEnum xDimension = 99;
constexpr FeatureEnum yDimension = 100;
constexpr FeatureEnum mediaColor = 101;
constexpr FeatureEnum mediaType = 102;
constexpr FeatureEnum mediaDescription = 104;
constexpr FeatureEnum mediaHoleCount = 105;
constexpr FeatureEnum mediaWeightMetric = 106;
constexpr FeatureEnum mediaSize = 113;
constexpr FeatureEnum inputDocuments = 115;
constexpr FeatureEnum pages = 116;
constexpr FeatureEnum paperSourceNumber = 119;
constexpr FeatureEnum coverFront = 120;
constexpr FeatureEnum coverBack = 121;
constexpr FeatureEnum pageOverrides = 122;
constexpr FeatureEnum insertSheet = 123;
constexpr FeatureEnum pclPaperSourceCol = 124;
constexpr FeatureEnum separatorSheets = 131;
constexpr FeatureEnum mediaCol = 133;
constexpr FeatureEnum highlightMapColorCustomCol = 134;
constexpr FeatureEnum colorSrgbCol = 135;
constexpr FeatureEnum colorDeviceCmykCol = 137;
} // namespace feature

/// The values that the library itself has to know by number.
namespace value {
constexpr std::int32_t collated = 2;
constexpr std::int32_t oneSided = 4;
constexpr std::int32_t impositionNone = 7;
constexpr std::int32_t saveNone = 9;
constexpr std::int32_t rotate0 = 21;
constexpr std::int32_t opiInsert = 25;
constexpr std::int32_t opiNoPreScan = 28;
constexpr std::int32_t finishingNone = 131;
constexpr std::int32_t mediaWhite = 159;
constexpr std::int32_t mediaStationery = 170;
constexpr std::int32_t noHoles = 181;
} // namespace value

} // namespace zent
