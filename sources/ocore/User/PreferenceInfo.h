#pragma once

#include <cstdint>

#include "ocore/Resources/ByteBuffer.h"
#include "ocore/Text/CXString.h"

namespace zent {

/// Data types of preferences.
namespace preferenceType {
constexpr std::uint32_t boolean = 1;
constexpr std::uint32_t number = 2;
constexpr std::uint32_t text = 3;
constexpr std::uint32_t unitOfMeasure = 4; // a number: 1 inches, 2 metric units
constexpr std::uint32_t rawData = 5;
} // namespace preferenceType

/// A preference that the library itself knows: its type is fixed.
struct PreferenceInfo {
    CXString name;
    std::uint32_t dataType = 0; // one of preferenceType
    ByteBuffer value;           // the default

    /// The type as failure messages show it.
    const char16_t* getDataTypeText() const {
        switch (dataType) {
        case preferenceType::boolean:
            return u"<bool>";
        case preferenceType::number:
            return u"<long>";
        case preferenceType::text:
            return u"<string>";
        case preferenceType::unitOfMeasure:
            return u"<unit of measure>";
        case preferenceType::rawData:
            return u"<raw data>";
        default:
            return u"<UNKNOWN!>";
        }
    }
};

} // namespace zent
