#include "ocore/AnlXlate/AjtPaper.h"

#include <string_view>
#include <utility>

#include "ocore/AnlXlate/AjtGroups.h"
#include "ocore/AnlXlate/AjtWords.h"

namespace zent::ajt {

namespace {

using namespace std::string_literals;

/// A name of a paper, with a backspace for each blank: it must stay one field among
/// blank-separated ones.
std::string asField(const CXString& name) { return replaceAll(name, u" ", u"\b").toNarrow(); }

std::string textOfNumber(const FeatureSettings& settings, FeatureEnum feature) {
    std::int32_t number = 0;
    return settings.getLong(_FI(feature), &number) ? std::to_string(number) : std::string();
}

bool fits(const AjtPrinterTraits::MediaSizeLimits& limits, std::int32_t x, std::int32_t y) {
    return x >= limits.xMinimum && x <= limits.xMaximum && y >= limits.yMinimum &&
           y <= limits.yMaximum;
}

bool isSignature(const FeatureSettings& settings) {
    return settings.getFeatureValue(_FI(feature::impositionTemplate)).getValue() ==
           value::impositionSignature;
}

std::string sizeText(const FeatureSettings& settings, const AjtPrinterTraits& traits) {
    constexpr std::int32_t widestSignature = 22900;
    std::int32_t x = 0;
    std::int32_t y = 0;
    if (!settings.getLong(_FI(feature::xDimension), &x) ||
        !settings.getLong(_FI(feature::yDimension), &y)) {
        return {};
    }
    if (!fits(traits.mediaSizeLimits, x, y) && fits(traits.mediaSizeLimits, y, x)) {
        std::swap(x, y);
    }
    if (traits.signatureSizeSwap && x > widestSignature && isSignature(settings)) {
        std::swap(x, y);
    }
    return std::to_string(inMillimetres(x)) + ' ' + std::to_string(inMillimetres(y));
}

std::string colorText(const FeatureSettings& settings) {
    static constexpr Word words[] = {
        {value::mediaNoColor, "noColor"}, {value::mediaWhite, "white"},
        {value::mediaPink, "pink"},       {value::mediaYellow, "yellow"},
        {value::mediaBlue, "blue"},       {value::mediaGreen, "green"},
        {value::mediaBuff, "buff"},       {value::mediaGoldenrod, "goldenrod"},
        {value::mediaRed, "red"},
    };
    const _FI mediaColor(feature::mediaColor);
    const FeatureValue color = settings.getFeatureValue(mediaColor);
    if (color.getValue() == FeatureValue::unspecified) {
        return {};
    }
    if (const std::string_view word = findWord(words, color); !word.empty()) {
        return std::string(word);
    }
    CXString name;
    settings.getString(mediaColor, &name);
    return asField(name);
}

std::string opacityText(FeatureValue type) {
    switch (type.getValue()) {
    case FeatureValue::unspecified:
        return {};
    case value::mediaTransparency:
        return "transparency";
    default:
        return "opaque";
    }
}

bool isDrilled(const FeatureSettings& settings) {
    constexpr std::int32_t drilledHoles = 3;
    std::int32_t holes = 0;
    return settings.getLong(_FI(feature::mediaHoleCount), &holes) && holes == drilledHoles;
}

/// The number of tabs in a set.
std::string orderCountText(const FeatureSettings& settings) {
    const std::string count = textOfNumber(settings, feature::mediaOrderCount);
    return count.empty() ? "0" : count;
}

std::string preFinishText(const FeatureSettings& settings, FeatureValue type) {
    if (type.getValue() == FeatureValue::unspecified) {
        return {};
    }
    const bool drilled = isDrilled(settings);
    switch (type.getValue()) {
    case value::mediaStationery:
    case value::mediaTransparency:
        return drilled ? "PlainDrilled 3 0" : "Plain 0 0";
    case value::mediaPreCutTabs:
    case value::mediaFullCutTabs:
        return (drilled ? "DrilledPreCutTab 3 "s : "PlainPreCutTab 0 "s) + orderCountText(settings);
    case value::mediaPrePrinted:
        return drilled ? "PreprintedDrilled 3 0" : "Preprinted 0 0";
    default:
        break;
    }
    CXString name;
    if (!settings.getString(_FI(feature::mediaType), &name)) {
        return {};
    }
    return asField(name) + (drilled ? " 3 " : " 0 ") + orderCountText(settings);
}

std::string_view firstOf(std::string_view text, std::string_view otherwise) {
    return text.empty() ? otherwise : text;
}

void writePaperLine(std::string_view keyword, std::string_view text, Output& output) {
    if (!text.empty()) {
        output << keyword << text << "\n";
    }
}

} // namespace

Paper::Paper(const FeatureSettings& settings, const AjtPrinterTraits& traits)
    : size(sizeText(settings, traits)), color(colorText(settings)),
      weight(textOfNumber(settings, feature::mediaWeightMetric)) {
    const FeatureValue type = settings.getFeatureValue(_FI(feature::mediaType));
    opacity = opacityText(type);
    preFinish = preFinishText(settings, type);
}

void writeDescription(const Paper& local, const Paper& job, const AjtPrinterTraits& traits,
                      Output& output) {
    const std::string_view jobWeight = traits.mediaWeightDefault ? job.weight : std::string_view();
    output << firstOf(local.size, firstOf(job.size, "216 279")) << " "
           << firstOf(local.color, firstOf(job.color, "white")) << " "
           << firstOf(local.opacity, firstOf(job.opacity, "opaque")) << " "
           << firstOf(local.preFinish, firstOf(job.preFinish, "Plain 0 0")) << " "
           << firstOf(local.weight, firstOf(jobWeight, "75"));
}

void writeDocumentPaper(const Job& job, Output& output) {
    writePaperLine("%TRVdocumentPaperColors: ", job.paper.color, output);
    writePaperLine("%TRVpaperType-opacity: ", job.paper.opacity, output);
    writePaperLine("%TRVpaperType-preFinish: ", job.paper.preFinish, output);
    writePaperLine("%TRVpaperType-size: ", job.paper.size, output);
    writePaperLine("%TRVpaperType-weight: ", job.paper.weight, output);
}

} // namespace zent::ajt
