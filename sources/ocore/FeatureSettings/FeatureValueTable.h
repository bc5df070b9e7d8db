#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

#include "ocore/FeatureSettings/FeatureEnum.h"

namespace zent {

/// One value as it is authored; FeatureValueDataBase makes a FeatureValueInfo of it.
struct FeatureValueRow {
    std::int32_t value;
    std::array<FeatureEnum, 3> features; // 0 where there is none
    const char16_t* text;
    const char16_t* abbreviation;
    std::uint32_t displayStringID;
    std::uint32_t imageID;
    const char16_t* syntax;
};

/// The values in front of the media names and behind them, in the order of their numbers.
std::span<const FeatureValueRow> getLowerValueRows();
std::span<const FeatureValueRow> getUpperValueRows();

/// The media names have the numbers from here on, in the order of the list, and belong to "media",
/// "media-key" and "media-description".
constexpr std::int32_t firstMediaName = 200;
std::span<const char16_t* const> getMediaNames();
/// The display strings and abbreviations of the media names follow their numbers, with exceptions.
std::uint32_t getMediaNameDisplayStringID(std::int32_t value);
std::u16string getMediaNameAbbreviation(std::int32_t value);

} // namespace zent
