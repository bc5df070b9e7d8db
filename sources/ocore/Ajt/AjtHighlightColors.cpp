// The second colour of a printer that has black and one more.

#include "ocore/Ajt/AjtGroups.h"
#include "ocore/FeatureSettings/FeatureEnum.h"

namespace zent::ajt {

namespace {

/// The stream calls these colours by the keywords of the feature. The values from `first` to `last`
/// are those that it knows.
void writeColor(const Job& job, std::string_view keyword, FeatureEnum feature, std::int32_t first,
                std::int32_t last, Output& output) {
    const FeatureValue color = job.ticket.getFeatureValue(feature);
    if (color.getValue() >= first && color.getValue() <= last) {
        job.ticket.take(feature);
        output << keyword << color.getText() << "\n";
    }
}

void writeWord(const Job& job, std::string_view keyword, FeatureEnum feature,
               std::span<const Word> words, Output& output) {
    const std::string_view word = job.ticket.takeWord(feature, words);
    if (!word.empty()) {
        output << keyword << word << "\n";
    }
}

} // namespace

void writeHighlightColors(const Job& job, Output& output) {
    static constexpr Word algorithms[] = {
        {value::mapObjectBased, "Automatic"},
        {value::mapPictorial, "Pictorial"},
        {value::mapPresentation, "Presentation"},
        {value::mapColorTables, "PictorialTable"},
        {value::mapColorToHighlight, "ColorToHighlight"},
        {value::mapMonochromeGrayscale, "Monochrome"},
    };
    static constexpr Word mismatches[] = {
        {value::mismatchUseReady, "selectCurrent"},
        {value::mismatchHold, "hold"},
        {value::mismatchAbort, "abort"},
    };
    writeColor(job, "%TRVhighlightPrintingColor: ", feature::highlightColorant, value::colorantRed,
               value::colorantOther, output);
    writeColor(job, "%TRVhighlightMappingColor: ", feature::highlightMapColor, value::mapColorRed,
               value::mapColorOther, output);
    writeWord(job, "%TRVhighlightMappingAlgorithm: ", feature::highlightMap, algorithms, output);
    writeWord(job, "%TRVmismatchedHighlightPrintingColor: ", feature::highlightColorantMismatch,
              mismatches, output);
}

} // namespace zent::ajt
