#include "ocore/Ajt/AjtPaper.h"

#include <string_view>
#include <utility>

#include "ocore/Ajt/AjtGroups.h"
#include "ocore/FeatureSettings/FeatureEnum.h"

namespace zent::ajt {

namespace {

using namespace std::string_literals;

/// Gives a paper's name with a backspace for each space, so that it stays one of several fields
/// that spaces separate.
std::string asField(const CXString& name) { return replaceAll(name, u" ", u"\b").toNarrow(); }

std::string textOfNumber(const TicketReader& ticket, FeatureEnum feature) {
    std::int32_t number = 0;
    return ticket.takeLong(feature, &number) ? std::to_string(number) : std::string();
}

bool fits(const AjtPrinterTraits::MediaSizeLimits& limits, std::int32_t x, std::int32_t y) {
    return x >= limits.xMinimum && x <= limits.xMaximum && y >= limits.yMinimum &&
           y <= limits.yMaximum;
}

bool isSignature(const TicketReader& ticket) {
    return ticket.getFeatureValue(feature::impositionTemplate).getValue() ==
           value::impositionSignature;
}

std::string sizeText(const TicketReader& ticket, const AjtPrinterTraits& traits) {
    constexpr std::int32_t widestSignature = 22900;
    std::int32_t x = 0;
    std::int32_t y = 0;
    if (!ticket.takeDimensions(&x, &y)) {
        return {};
    }
    if (!fits(traits.mediaSizeLimits, x, y) && fits(traits.mediaSizeLimits, y, x)) {
        std::swap(x, y);
    }
    if (traits.signatureSizeSwap && x > widestSignature && isSignature(ticket)) {
        std::swap(x, y);
    }
    return std::to_string(inMillimetres(x)) + ' ' + std::to_string(inMillimetres(y));
}

std::string colorText(const TicketReader& ticket) {
    static constexpr Word words[] = {
        {value::mediaNoColor, "noColor"}, {value::mediaWhite, "white"},
        {value::mediaPink, "pink"},       {value::mediaYellow, "yellow"},
        {value::mediaBlue, "blue"},       {value::mediaGreen, "green"},
        {value::mediaBuff, "buff"},       {value::mediaGoldenrod, "goldenrod"},
        {value::mediaRed, "red"},
    };
    const FeatureValue color = ticket.getFeatureValue(feature::mediaColor);
    if (color.getValue() == FeatureValue::unspecified) {
        return {};
    }
    if (const std::string_view word = findWord(words, color); !word.empty()) {
        ticket.take(feature::mediaColor);
        return std::string(word);
    }
    CXString name;
    ticket.takeString(feature::mediaColor, &name);
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

/// The stream knows paper with three holes and paper without any.
bool isDrilled(const TicketReader& ticket) {
    constexpr std::int32_t drilledHoles = 3;
    std::int32_t holes = 0;
    ticket.getSettings().getLong(_FI(feature::mediaHoleCount), &holes);
    if (holes == 0 || holes == drilledHoles) {
        ticket.take(feature::mediaHoleCount);
    }
    return holes == drilledHoles;
}

/// The number of tabs in a set.
std::string orderCountText(const TicketReader& ticket) {
    const std::string count = textOfNumber(ticket, feature::mediaOrderCount);
    return count.empty() ? "0" : count;
}

std::string preFinishText(const TicketReader& ticket, FeatureValue type) {
    if (type.getValue() == FeatureValue::unspecified) {
        return {};
    }
    ticket.take(feature::mediaType);
    const bool drilled = isDrilled(ticket);
    switch (type.getValue()) {
    case value::mediaStationery:
    case value::mediaTransparency:
        return drilled ? "PlainDrilled 3 0" : "Plain 0 0";
    case value::mediaPreCutTabs:
    case value::mediaFullCutTabs:
        return (drilled ? "DrilledPreCutTab 3 "s : "PlainPreCutTab 0 "s) + orderCountText(ticket);
    case value::mediaPrePrinted:
        return drilled ? "PreprintedDrilled 3 0" : "Preprinted 0 0";
    default:
        break;
    }
    CXString name;
    if (!ticket.takeString(feature::mediaType, &name)) {
        return {};
    }
    return asField(name) + (drilled ? " 3 " : " 0 ") + orderCountText(ticket);
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

Paper::Paper(const TicketReader& ticket, const AjtPrinterTraits& traits)
    : size(sizeText(ticket, traits)), color(colorText(ticket)),
      weight(textOfNumber(ticket, feature::mediaWeightMetric)) {
    const FeatureValue type = ticket.getFeatureValue(feature::mediaType);
    opacity = opacityText(type);
    preFinish = preFinishText(ticket, type);
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
