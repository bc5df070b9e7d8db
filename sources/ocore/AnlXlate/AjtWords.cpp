#include "ocore/AnlXlate/AjtWords.h"

#include <algorithm>

namespace zent::ajt {

std::string_view findWord(std::span<const Word> table, FeatureValue value) {
    const auto found = std::ranges::find(table, value.getValue(), &Word::value);
    return found == table.end() ? std::string_view() : found->word;
}

std::string_view getPlexWord(const FeatureSettings& settings) {
    static constexpr Word words[] = {
        {value::oneSided, "simplex"},
        {value::twoSidedLongEdge, "duplex"},
        {value::twoSidedShortEdge, "duplex(tumble)"},
    };
    return findWord(words, settings.getFeatureValue(_FI(feature::sides)));
}

std::string_view getRotationWord(const FeatureSettings& settings) {
    static constexpr Word words[] = {
        {value::rotate0, "0"},
        {value::rotate90, "90"},
        {value::rotate180, "180"},
        {value::rotate270, "270"},
    };
    return findWord(words, settings.getFeatureValue(_FI(feature::pageRotation)));
}

} // namespace zent::ajt
