#pragma once

#include <span>
#include <string_view>

#include "ocore/FeatureSettings/FeatureNumber.h"
#include "ocore/FeatureSettings/FeatureValue.h"

namespace zent::ajt {

/// What a value of a feature is called in the stream.
struct Word {
    std::int32_t value;
    std::string_view word;
};

/// Empty if the table hasn't the value.
std::string_view findWord(std::span<const Word> table, FeatureValue value);

} // namespace zent::ajt
