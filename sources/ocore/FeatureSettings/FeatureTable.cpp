#include "ocore/FeatureSettings/FeatureTable.h"

namespace zent {

namespace {

constexpr const char16_t* integer = u"integer";
constexpr const char16_t* enumeration = u"enum";
constexpr const char16_t* keyword = u"keyword";
constexpr const char16_t* name = u"name";
constexpr const char16_t* text = u"text";
constexpr const char16_t* uri = u"uri";
constexpr const char16_t* mime = u"mimeMediaType";
constexpr const char16_t* range = u"rangeOfInteger";
constexpr const char16_t* resolution = u"resolution";
constexpr const char16_t* collection = u"collection";

constexpr FeatureUnit noUnit;
constexpr FeatureUnit fromZero{"", 0};
constexpr FeatureUnit fromOne{"", 1};
constexpr FeatureUnit shift{FeatureUnit::length, FeatureUnit::anyNumber};
constexpr FeatureUnit dimension{FeatureUnit::length, 1};
constexpr FeatureUnit weight{"g/m2", 1};
constexpr FeatureUnit pageNumber{"page number", 1};
constexpr FeatureUnit pageOrNone{"page number", 0};
constexpr FeatureUnit formNumber{"form number", 1};
constexpr FeatureUnit documentNumber{"document number", 1};
constexpr FeatureUnit pageCount{"pages", 1};
constexpr FeatureUnit sheets{"sheets", 1};
constexpr FeatureUnit holes{"holes", 0};

using namespace feature;

// Feature, leaf, parents, abbreviation, syntaxes, support class, display string, related features,
// unit.
// clang-format off
constexpr FeatureRow rows[] = {
    {copies,                       u"copies",                          u"",                                                         u"A",  {integer},       3,  5220, {},                                                       fromOne},
    {sheetCollate,                 u"sheet-collate",                   u"",                                                         u"B",  {keyword},       3,  5221, {},                                                       noUnit},
    {sides,                        u"sides",                           u"",                                                         u"a",  {keyword},       3,  1352, {},                                                       noUnit},
    {impositionTemplate,           u"imposition-template",             u"",                                                         u"D",  {keyword, name}, 2,  1359, {},                                                       noUnit},
    {pageRanges,                   u"value",                           u"page-ranges:s!",                                           u"E",  {range},         1,  5222, {},                                                       pageNumber},
    {saveDisposition,              u"save-disposition",                u"job-save-disposition:c",                                   u"I",  {keyword},       2,  5224, {formSaveDisposition},                                    noUnit},
    {saveDocumentFormat,           u"save-document-format",            u"job-save-disposition:c/save-info:s/value:c",               u"J",  {mime},          2,  5226, {formSaveFormat},                                         noUnit},
    {saveName,                     u"save-name",                       u"job-save-disposition:c/save-info:s/value:c",               u"aq", {name},          1,  5227, {},                                                       noUnit},
    {saveLocation,                 u"save-location",                   u"job-save-disposition:c/save-info:s/value:c",               u"M",  {uri},           1,  5228, {},                                                       noUnit},
    {formSaveDisposition,          u"form-save-disposition",           u"form-save:c",                                              u"du", {keyword},       2,  5255, {saveDisposition},                                        noUnit},
    {formSaveFormat,               u"form-save-format",                u"form-save:c/form-save-info:s/value:c",                     u"dv", {mime},          1,  5256, {saveDocumentFormat},                                     noUnit},
    {formSaveName,                 u"form-save-name",                  u"form-save:c/form-save-info:s/value:c",                     u"dw", {name},          1,  5257, {},                                                       noUnit},
    {formSaveLocation,             u"form-save-location",              u"form-save:c/form-save-info:s/value:c",                     u"dx", {uri},           1,  5258, {},                                                       noUnit},
    {formName,                     u"form-name",                       u"forms-col:s/value:c",                                      u"dz", {name},          2,  5262, {},                                                       noUnit},
    {formLocation,                 u"form-location",                   u"forms-col:s/value:c",                                      u"ea", {uri},           1,  5263, {},                                                       noUnit},
    {formCycleType,                u"form-cycle-type",                 u"forms-col:s/value:c",                                      u"eb", {keyword},       1,  5264, {},                                                       noUnit},
    {formCycleStart,               u"form-cycle-start",                u"forms-col:s/value:c",                                      u"ec", {integer},       1,  5265, {},                                                       formNumber},
    {formsXImageShift,             u"forms-x-image-shift",             u"forms-col:s/value:c",                                      u"ed", {integer},       1,  5266, {},                                                       shift},
    {formsYImageShift,             u"forms-y-image-shift",             u"forms-col:s/value:c",                                      u"ef", {integer},       1,  5267, {},                                                       shift},
    {jobName,                      u"job-name",                        u"",                                                         u"f",  {name},          3,  6213, {},                                                       noUnit},
    {jobAccountID,                 u"job-account-id",                  u"",                                                         u"O",  {name},          1,  6214, {},                                                       noUnit},
    {jobAccountingUserID,          u"job-accounting-user-id",          u"",                                                         u"al", {name},          1,  6220, {},                                                       noUnit},
    {jobAccountingData,            u"job-accounting-data",             u"",                                                         u"ap", {text},          1,  6221, {},                                                       noUnit},
    {requestingUserName,           u"requesting-user-name",            u"",                                                         u"g",  {name},          1,  6215, {},                                                       noUnit},
    {jobRecipientName,             u"job-recipient-name",              u"",                                                         u"K",  {name},          1,  6216, {},                                                       noUnit},
    {jobSheetMessage,              u"job-sheet-message",               u"",                                                         u"W",  {text},          1,  6217, {},                                                       noUnit},
    {jobMessageToOperator,         u"job-message-to-operator",         u"",                                                         u"X",  {text},          1,  6218, {},                                                       noUnit},
    {jobPhoneNumber,               u"job-phone-number",                u"",                                                         u"Y",  {text},          1,  6219, {},                                                       noUnit},
    {antiAliasing,                 u"anti-aliasing",                   u"",                                                         u"at", {keyword},       1,  6103, {},                                                       noUnit},
    {pageRotation,                 u"page-rotation",                   u"",                                                         u"au", {keyword},       3,  2036, {},                                                       noUnit},
    {opiImageInsertion,            u"opi-image-insertion",             u"",                                                         u"av", {keyword},       1,  2037, {},                                                       noUnit},
    {opiImagePreScan,              u"opi-image-pre-scan",              u"",                                                         u"aw", {keyword},       1,  2038, {},                                                       noUnit},
    {halftoneGraphics,             u"halftone-graphics",               u"",                                                         u"ax", {keyword},       1,  6133, {halftoneImages, halftoneText},                           noUnit},
    {halftoneImages,               u"halftone-images",                 u"",                                                         u"cx", {keyword},       1,  6134, {halftoneGraphics, halftoneText},                         noUnit},
    {halftoneText,                 u"halftone-text",                   u"",                                                         u"cz", {keyword},       1,  6135, {halftoneGraphics, halftoneImages},                       noUnit},
    {printerResolution,            u"printer-resolution",              u"",                                                         u"ay", {resolution},    1,  6123, {},                                                       noUnit},
    {xSide1ImageShift,             u"x-side1-image-shift",             u"",                                                         u"b",  {integer},       1,  6003, {},                                                       shift},
    {ySide1ImageShift,             u"y-side1-image-shift",             u"",                                                         u"c",  {integer},       1,  6004, {},                                                       shift},
    {xSide2ImageShift,             u"x-side2-image-shift",             u"",                                                         u"d",  {integer},       1,  6005, {},                                                       shift},
    {ySide2ImageShift,             u"y-side2-image-shift",             u"",                                                         u"e",  {integer},       1,  6006, {},                                                       shift},
    {xImageShift,                  u"x-image-shift",                   u"",                                                         u"ar", {integer},       1,  6018, {},                                                       shift},
    {yImageShift,                  u"y-image-shift",                   u"",                                                         u"as", {integer},       1,  6019, {},                                                       shift},
    {highlightColorant,            u"highlight-colorant",              u"",                                                         u"az", {keyword, name}, 1, 10796, {},                                                       noUnit},
    {highlightMapColor,            u"highlight-map-color",             u"",                                                         u"ba", {keyword, name}, 1, 10797, {},                                                       noUnit},
    {highlightMap,                 u"highlight-map",                   u"",                                                         u"bb", {keyword, name}, 1, 10798, {},                                                       noUnit},
    {highlightColorantMismatch,    u"highlight-colorant-mismatch",     u"",                                                         u"bc", {keyword, name}, 1, 10799, {},                                                       noUnit},
    {colorSrgbRed,                 u"color-srgb-red",                  u"highlight-map-color-custom-col:c/color-srgb-col:c",        u"cw", {integer},       1, 10871, {},                                                       fromZero},
    {colorSrgbGreen,               u"color-srgb-green",                u"highlight-map-color-custom-col:c/color-srgb-col:c",        u"dj", {integer},       1, 10872, {},                                                       fromZero},
    {colorSrgbBlue,                u"color-srgb-blue",                 u"highlight-map-color-custom-col:c/color-srgb-col:c",        u"dk", {integer},       1, 10873, {},                                                       fromZero},
    {colorHsvHue,                  u"color-hsv-hue",                   u"highlight-map-color-custom-col:c/color-hsv-col:c",         u"dl", {integer},       1, 10874, {},                                                       fromZero},
    {colorHsvSaturation,           u"color-hsv-saturation",            u"highlight-map-color-custom-col:c/color-hsv-col:c",         u"dm", {integer},       1, 10875, {},                                                       fromZero},
    {colorHsvValue,                u"color-hsv-value",                 u"highlight-map-color-custom-col:c/color-hsv-col:c",         u"dn", {integer},       1, 10876, {},                                                       fromZero},
    {colorDeviceCmykCyan,          u"color-device-cmyk-cyan",          u"highlight-map-color-custom-col:c/color-device-cmyk-col:c", u"do", {integer},       1, 10877, {},                                                       fromZero},
    {colorDeviceCmykMagenta,       u"color-device-cmyk-magenta",       u"highlight-map-color-custom-col:c/color-device-cmyk-col:c", u"dp", {integer},       1, 10878, {},                                                       fromZero},
    {colorDeviceCmykYellow,        u"color-device-cmyk-yellow",        u"highlight-map-color-custom-col:c/color-device-cmyk-col:c", u"dq", {integer},       1, 10879, {},                                                       fromZero},
    {colorDeviceCmykBlack,         u"color-device-cmyk-black",         u"highlight-map-color-custom-col:c/color-device-cmyk-col:c", u"dr", {integer},       1, 10880, {},                                                       fromZero},
    {colorEffectsType,             u"color-effects-type",              u"",                                                         u"bg", {keyword},       1,  2706, {},                                                       noUnit},
    {blackOverprint,               u"black-overprint",                 u"",                                                         u"bh", {keyword},       1,  2707, {},                                                       noUnit},
    {trapping,                     u"trapping",                        u"",                                                         u"bi", {keyword},       1,  2708, {},                                                       noUnit},
    {trapWidthFast,                u"trap-width-fast",                 u"",                                                         u"bj", {integer},       1,  2709, {},                                                       fromZero},
    {trapWidthSlow,                u"trap-width-slow",                 u"",                                                         u"bk", {integer},       1,  2710, {},                                                       fromZero},
    {adjustLightness,              u"adjust-lightness",                u"",                                                         u"bl", {integer},       1,  2671, {},                                                       noUnit},
    {adjustContrast,               u"adjust-contrast",                 u"",                                                         u"bm", {integer},       1,  2672, {},                                                       noUnit},
    {adjustSaturation,             u"adjust-saturation",               u"",                                                         u"bn", {integer},       1,  2673, {},                                                       noUnit},
    {undefinedSourceRgbImages,     u"undefined-source-rgb-images",     u"",                                                         u"bo", {keyword, name}, 1,  2677, {undefinedSourceRgbText, undefinedSourceRgbGraphics},     noUnit},
    {undefinedSourceRgbGraphics,   u"undefined-source-rgb-graphics",   u"",                                                         u"bp", {keyword, name}, 1,  2678, {undefinedSourceRgbImages, undefinedSourceRgbText},       noUnit},
    {undefinedSourceRgbText,       u"undefined-source-rgb-text",       u"",                                                         u"bq", {keyword, name}, 1,  2678, {undefinedSourceRgbImages, undefinedSourceRgbGraphics},   noUnit},
    {undefinedSourceGrayImages,    u"undefined-source-gray-images",    u"",                                                         u"br", {keyword, name}, 1,  2681, {undefinedSourceGrayText, undefinedSourceGrayGraphics},   noUnit},
    {undefinedSourceGrayGraphics,  u"undefined-source-gray-graphics",  u"",                                                         u"bs", {keyword, name}, 1,  2682, {undefinedSourceGrayImages, undefinedSourceGrayText},     noUnit},
    {undefinedSourceGrayText,      u"undefined-source-gray-text",      u"",                                                         u"bt", {keyword, name}, 1,  2682, {undefinedSourceGrayImages, undefinedSourceGrayGraphics}, noUnit},
    {undefinedSourceCmykImages,    u"undefined-source-cmyk-images",    u"",                                                         u"bu", {keyword, name}, 1,  2683, {undefinedSourceCmykText, undefinedSourceCmykGraphics},   noUnit},
    {undefinedSourceCmykGraphics,  u"undefined-source-cmyk-graphics",  u"",                                                         u"bv", {keyword, name}, 1,  2684, {undefinedSourceCmykImages, undefinedSourceCmykText},     noUnit},
    {undefinedSourceCmykText,      u"undefined-source-cmyk-text",      u"",                                                         u"bw", {keyword, name}, 1,  2684, {undefinedSourceCmykImages, undefinedSourceCmykGraphics}, noUnit},
    {colorEmulation,               u"color-emulation",                 u"",                                                         u"by", {keyword, name}, 1,  2711, {},                                                       noUnit},
    {colorDestinationProfileFront, u"color-destination-profile-front", u"",                                                         u"bx", {keyword, name}, 1,  2712, {colorDestinationProfileBack},                            noUnit},
    {colorDestinationProfileBack,  u"color-destination-profile-back",  u"",                                                         u"bz", {keyword, name}, 1,  2713, {colorDestinationProfileFront},                           noUnit},
    {renderingIntentImages,        u"rendering-intent-images",         u"",                                                         u"ca", {keyword},       1,  2685, {renderingIntentText, renderingIntentGraphics},           noUnit},
    {renderingIntentText,          u"rendering-intent-text",           u"",                                                         u"cb", {keyword},       1,  2686, {renderingIntentImages, renderingIntentGraphics},         noUnit},
    {renderingIntentGraphics,      u"rendering-intent-graphics",       u"",                                                         u"cc", {keyword},       1,  2687, {renderingIntentImages, renderingIntentText},             noUnit},
    {trcName,                      u"trc-name",                        u"trc:c",                                                    u"ce", {name},          1,  6120, {},                                                       noUnit},
    {outputBin,                    u"output-bin",                      u"",                                                         u"cp", {keyword, name}, 1,  5233, {},                                                       noUnit},
    {adjustCyanRed,                u"adjust-cyan-red",                 u"",                                                         u"cf", {integer},       1,  2674, {},                                                       noUnit},
    {adjustMagentaGreen,           u"adjust-magenta-green",            u"",                                                         u"cg", {integer},       1,  2675, {},                                                       noUnit},
    {adjustYellowBlue,             u"adjust-yellow-blue",              u"",                                                         u"ch", {integer},       1,  2676, {},                                                       noUnit},
    {finishings,                   u"value",                           u"finishings:s!",                                            u"ci", {enumeration},   3,  5229, {},                                                       noUnit},
    {separatorSheetsType,          u"separator-sheets-type",           u"separator-sheets:c",                                       u"ck", {keyword},       2,  1324, {},                                                       noUnit},
    {finishingTemplate,            u"finishing-template",              u"finishings-col:c",                                         u"cm", {name},          2,  5232, {},                                                       noUnit},
    {jobOffset,                    u"value",                           u"job-offset:s!",                                            u"cn", {keyword},       1,  5238, {},                                                       noUnit},
    {pagesPerSubset,               u"value",                           u"pages-per-subset:s!",                                      u"co", {integer},       1,  5237, {},                                                       pageCount},
    {forceFrontSide,               u"value",                           u"force-front-side:s!",                                      u"cq", {integer},       1,  7002, {},                                                       pageNumber},
    {tonerSaver,                   u"toner-saver",                     u"",                                                         u"cr", {keyword},       1,  6132, {},                                                       noUnit},
    {adjustBwDarknessMode,         u"adjust-bw-darkness-mode",         u"",                                                         u"cs", {keyword, name}, 1,  6115, {},                                                       noUnit},
    {adjustBwDarknessValue,        u"adjust-bw-darkness-value",        u"",                                                         u"ct", {integer},       1,  6128, {},                                                       noUnit},
    {jobHoldUntil,                 u"job-hold-until",                  u"",                                                         u"cu", {keyword, name}, 1,  5243, {},                                                       noUnit},
    {pageDelivery,                 u"page-delivery",                   u"",                                                         u"cv", {keyword},       1,  5246, {},                                                       noUnit},
    {media,                        u"media",                           u"",                                                         u"n",  {keyword, name}, 2,  7391, {mediaKey, mediaDescription},                             noUnit},
    {mediaKey,                     u"media-key",                       u"media-col:c",                                              u"p",  {keyword, name}, 2,  7393, {media, mediaDescription},                                noUnit},
    {xDimension,                   u"x-dimension",                     u"media-col:c/media-size:c",                                 u"Q",  {integer},       3,  7394, {},                                                       dimension},
    {yDimension,                   u"y-dimension",                     u"media-col:c/media-size:c",                                 u"R",  {integer},       3,  7395, {},                                                       dimension},
    {mediaColor,                   u"media-color",                     u"media-col:c",                                              u"q",  {keyword, name}, 3,  7203, {},                                                       noUnit},
    {mediaType,                    u"media-type",                      u"media-col:c",                                              u"r",  {keyword, name}, 3,  7204, {},                                                       noUnit},
    {mediaOrderCount,              u"media-order-count",               u"media-col:c",                                              u"u",  {integer},       1,  7212, {},                                                       sheets},
    {mediaDescription,             u"media-description",               u"media-col:c",                                              u"z",  {name},          1,  7206, {media, mediaKey},                                        noUnit},
    {mediaHoleCount,               u"media-hole-count",                u"media-col:c",                                              u"v",  {integer},       3,  7205, {},                                                       holes},
    {mediaWeightMetric,            u"media-weight-metric",             u"media-col:c",                                              u"y",  {integer},       3,  7207, {},                                                       weight},
    {mediaFrontCoating,            u"media-front-coating",             u"media-col:c",                                              u"w",  {keyword, name}, 1,  7208, {},                                                       noUnit},
    {mediaBackCoating,             u"media-back-coating",              u"media-col:c",                                              u"x",  {keyword, name}, 1,  7209, {},                                                       noUnit},
    {mediaTooth,                   u"media-tooth",                     u"media-col:c",                                              u"S",  {keyword, name}, 1,  7357, {},                                                       noUnit},
    {mediaGrain,                   u"media-grain",                     u"media-col:c",                                              u"Z",  {keyword, name}, 1,  7358, {},                                                       noUnit},
    {mediaPrePrinted,              u"media-pre-printed",               u"media-col:c",                                              u"s",  {keyword, name}, 1,  7210, {},                                                       noUnit},
    {mediaRecycled,                u"media-recycled",                  u"media-col:c",                                              u"t",  {keyword, name}, 1,  7211, {},                                                       noUnit},
    {mediaSize,                    u"media-size",                      u"media-col:c",                                              u"P",  {collection},    3,  7202, {},                                                       dimension},
    {coverType,                    u"cover-type",                      u"",                                                         u"bd", {keyword},       2,  6816, {},                                                       noUnit},
    {inputDocuments,               u"value",                           u"input-documents:s!",                                       u"h",  {range},         2,  5610, {},                                                       documentNumber},
    {pages,                        u"value",                           u"pages:s!",                                                 u"i",  {range},         2,  5611, {},                                                       pageNumber},
    {insertAfterPageNumber,        u"insert-after-page-number",        u"",                                                         u"m",  {integer},       2,  6400, {},                                                       pageOrNone},
    {insertCount,                  u"insert-count",                    u"",                                                         u"l",  {integer},       2,  6402, {},                                                       sheets},
    {paperSourceNumber,            u"paper-source-number",             u"",                                                         u"da", {enumeration},   2,  8006, {},                                                       noUnit},
    {coverFront,                   u"cover-front",                     u"",                                                         u"be", {collection},    1,  6817, {},                                                       noUnit},
    {coverBack,                    u"cover-back",                      u"",                                                         u"bf", {collection},    1,  6818, {},                                                       noUnit},
    {pageOverrides,                u"value",                           u"page-overrides:s!",                                        u"j",  {collection},    1,  5612, {},                                                       noUnit},
    {insertSheet,                  u"value",                           u"insert-sheet:s!",                                          u"k",  {collection},    1,  6409, {},                                                       noUnit},
    {pclPaperSourceCol,            u"value",                           u"pcl-paper-source-col:s!",                                  u"db", {collection},    1,  8007, {},                                                       noUnit},
    {jobSaveDisposition,           u"job-save-disposition",            u"",                                                         u"G",  {collection},    1,  5223, {},                                                       noUnit},
    {saveInfo,                     u"value",                           u"job-save-disposition:c/save-info:s!",                      u"H",  {collection},    1,  5225, {},                                                       noUnit},
    {formSave,                     u"form-save",                       u"",                                                         u"ds", {collection},    1,  5253, {},                                                       noUnit},
    {formSaveInfo,                 u"value",                           u"form-save:c/form-save-info:s!",                            u"dt", {collection},    1,  5254, {},                                                       noUnit},
    {formsCol,                     u"value",                           u"forms-col:s!",                                             u"dy", {collection},    1,  5261, {},                                                       noUnit},
    {trc,                          u"trc",                             u"",                                                         u"cd", {collection},    1,  6119, {},                                                       noUnit},
    {separatorSheets,              u"separator-sheets",                u"",                                                         u"cj", {collection},    1,  5230, {},                                                       noUnit},
    {finishingsCol,                u"finishings-col",                  u"",                                                         u"cl", {collection},    1,  5231, {},                                                       noUnit},
    {mediaCol,                     u"media-col",                       u"",                                                         u"o",  {collection},    1,  7392, {},                                                       noUnit},
    {highlightMapColorCustomCol,   u"highlight-map-color-custom-col",  u"",                                                         u"df", {collection},    1, 10881, {},                                                       noUnit},
    {colorSrgbCol,                 u"color-srgb-col",                  u"",                                                         u"dg", {collection},    1, 10882, {},                                                       noUnit},
    {colorHsvCol,                  u"color-hsv-col",                   u"",                                                         u"dh", {collection},    1, 10883, {},                                                       noUnit},
    {colorDeviceCmykCol,           u"color-device-cmyk-col",           u"",                                                         u"di", {collection},    1, 10884, {},                                                       noUnit},
};
// clang-format on

} // namespace

std::span<const FeatureRow> getFeatureRows() { return rows; }

} // namespace zent
