#pragma once

#include <cstdint>

#include "ocore/Attributes/NestedAttrID.h"
#include "ocore/FeatureSettings/FeatureNumber.h"
#include "ocore/FeatureSettings/SyntaxList.h"

namespace zent {

/// Who defined the attribute of a capability. Validation handles the two apart.
namespace capabilityClass {
constexpr std::uint32_t standard = 1;  // "KRSS": the published standard of the printer family
constexpr std::uint32_t extension = 2; // "PRIVATE": this system's own
} // namespace capabilityClass

/// What a capability says about its feature.
enum CapabilityType : std::uint32_t {
    CAPTYPE_INT_RANGE = 1,              // the range of integers allowed
    CAPTYPE_IS_SUPPORTED = 2,           // a boolean: the feature exists on the printer
    CAPTYPE_SUPPORTED_FEATURES = 3,     // a set of keywords naming member attributes
    CAPTYPE_SUPPORTED_VALUES = 4,       // the set of the values allowed
    CAPTYPE_INT_UPPER_LIMIT = 5,        // an integer ceiling, for lengths of text
    CAPTYPE_PRECISION = 6,              // an integer step
    CAPTYPE_USER_DEFINABLE = 7,         // a set of keywords of attributes that take a free value
    CAPTYPE_EMBEDDED_SPACES = 8,        // a boolean: a text may hold spaces
    CAPTYPE_CHAR_RESTRICTION = 9,       // an enum that chooses a character set restriction
    CAPTYPE_SEPARATE_COVERS = 10,       // a boolean
    CAPTYPE_INSERT_MULTIPLE_MEDIA = 11, // a boolean
    CAPTYPE_TIFF_PRINT_SAVE = 12,       // a boolean
};

/// The type for diagnosis, such as "[Integer Range]"; "[UNKNOWN!]" for any other number.
CXString getCapabilityTypeText(std::uint32_t type);

/// One row of the capability table.
struct CapabilityInfo {
    FeatureEnum m_feature = TJTF_ANY; // TJTF_ANY for a capability of the printer as a whole
    NestedAttrID m_nestedID;
    std::uint32_t m_class = capabilityClass::standard;
    std::uint32_t m_type = CAPTYPE_INT_RANGE;
    SyntaxList m_syntaxes;
};

} // namespace zent
