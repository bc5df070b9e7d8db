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
    std::array<FeatureEnum, 3> features; // none fills up
    const char16_t* text;
    const char16_t* abbreviation;
    std::uint32_t displayStringID;
    std::uint32_t imageID;
    const char16_t* syntax;
};

/// The values before the media names, and those after them, in the order of their numbers.
std::span<const FeatureValueRow> getLowerValueRows();
std::span<const FeatureValueRow> getUpperValueRows();

/// The media names, from value::firstMediaName on; they belong to "media", "media-key" and
/// "media-description".
struct MediaName {
    const char16_t* text;
    std::uint32_t displayStringID;
};
std::span<const MediaName> getMediaNames();
/// The abbreviations of the media names follow their numbers, with exceptions.
std::u16string getMediaNameAbbreviation(std::int32_t value);

} // namespace zent
