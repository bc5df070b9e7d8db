#pragma once

#include <cstdint>

#include "ocore/CXString.h"

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
inline const CXString integer(u"integer");
inline const CXString enumeration(u"enum");
inline const CXString name(u"name");
inline const CXString keyword(u"keyword");
inline const CXString boolean(u"boolean");
inline const CXString text(u"text");
inline const CXString mimeMediaType(u"mimeMediaType");
inline const CXString uri(u"uri");
inline const CXString setOf(u"1setOf");
inline const CXString collection(u"collection");
inline const CXString rangeOfInteger(u"rangeOfInteger");
inline const CXString resolution(u"resolution");
} // namespace syntax

/// The kind that a syntax keyword stands for: AVTE_LIST for all four compound syntaxes, AVTE_NULL
/// for a keyword that isn't known.
AVTE syntaxToAVTE(const CXString& syntax);

/// The enumerator's name; "UNKNOWN!" for any other number.
CXString AVTEToString(AVTE type);

} // namespace zent
