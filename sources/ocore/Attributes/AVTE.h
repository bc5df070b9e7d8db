#pragma once

#include <cstdint>

#include "ocore/Text/CXString.h"
#include "platform/KeepForever.h"

namespace zent {

/// The kinds of attribute values (attribute value type enumeration).
enum AVTE : std::uint32_t {
    AVTE_NULL = 1,
    AVTE_INTEGER = 2,
    AVTE_ENUM = 3,
    AVTE_NAME = 4,
    AVTE_KEYWORD = 5,
    AVTE_BOOLEAN = 6,
    AVTE_TEXT = 7,
    AVTE_MIMEMEDIA = 8,
    AVTE_URI = 9,
    AVTE_LIST = 10,
};

/// The keywords of the attribute syntaxes (RFC 8011, section 5.1).
namespace syntax {
inline const CXString& integer = keepForever<CXString>(u"integer");
inline const CXString& enumeration = keepForever<CXString>(u"enum");
inline const CXString& name = keepForever<CXString>(u"name");
inline const CXString& keyword = keepForever<CXString>(u"keyword");
inline const CXString& boolean = keepForever<CXString>(u"boolean");
inline const CXString& text = keepForever<CXString>(u"text");
inline const CXString& mimeMediaType = keepForever<CXString>(u"mimeMediaType");
inline const CXString& uri = keepForever<CXString>(u"uri");
inline const CXString& setOf = keepForever<CXString>(u"1setOf");
inline const CXString& collection = keepForever<CXString>(u"collection");
inline const CXString& rangeOfInteger = keepForever<CXString>(u"rangeOfInteger");
inline const CXString& resolution = keepForever<CXString>(u"resolution");
} // namespace syntax

/// The kind that a syntax keyword stands for: AVTE_LIST for all four compound syntaxes, AVTE_NULL
/// for a keyword that isn't known.
AVTE syntaxToAVTE(const CXString& syntax);

/// The enumerator's name; "UNKNOWN!" for any other number.
CXString AVTEToString(AVTE type);

} // namespace zent
