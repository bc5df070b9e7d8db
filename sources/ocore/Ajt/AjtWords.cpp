#include "ocore/Ajt/AjtWords.h"

#include <algorithm>

namespace zent::ajt {

std::string_view findWord(std::span<const Word> table, FeatureValue value) {
    const auto found = std::ranges::find(table, value.getValue(), &Word::value);
    return found == table.end() ? std::string_view() : found->word;
}

} // namespace zent::ajt
