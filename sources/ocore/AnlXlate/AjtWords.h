#pragma once

#include <span>
#include <string_view>

#include "ocore/AnlXlate/AjtValues.h"
#include "ocore/FeatureSettings/FeatureSettings.h"

namespace zent::ajt {

/// What a value of a feature is called in the stream.
struct Word {
    std::int32_t value;
    std::string_view word;
};

/// Empty if the table hasn't the value.
std::string_view findWord(std::span<const Word> table, FeatureValue value);

/// The words of "sides" and "page-rotation", of a job or of some of its pages; empty if they aren't
/// set.
std::string_view getPlexWord(const FeatureSettings& settings);
std::string_view getRotationWord(const FeatureSettings& settings);

} // namespace zent::ajt
