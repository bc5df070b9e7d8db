#include "ocore/Attributes/AVTE.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace zent {

namespace {

struct SyntaxRow {
    std::u16string_view keyword;
    AVTE type;
};
constexpr std::array<SyntaxRow, 12> syntaxRows{{
    {u"integer", AVTE_INTEGER},
    {u"keyword", AVTE_KEYWORD},
    {u"name", AVTE_NAME},
    {u"enum", AVTE_ENUM},
    {u"boolean", AVTE_BOOLEAN},
    {u"text", AVTE_TEXT},
    {u"mimeMediaType", AVTE_MIMEMEDIA},
    {u"uri", AVTE_URI},
    {u"1setOf", AVTE_LIST},
    {u"collection", AVTE_LIST},
    {u"rangeOfInteger", AVTE_LIST},
    {u"resolution", AVTE_LIST},
}};

} // namespace

AVTE syntaxToAVTE(const CXString& syntax) {
    const auto* row = std::ranges::find(syntaxRows, syntax.view(), &SyntaxRow::keyword);
    return row == syntaxRows.end() ? AVTE_NULL : row->type;
}

CXString AVTEToString(AVTE type) {
    switch (type) {
    case AVTE_NULL:
        return u"AVTE_NULL";
    case AVTE_INTEGER:
        return u"AVTE_INTEGER";
    case AVTE_ENUM:
        return u"AVTE_ENUM";
    case AVTE_NAME:
        return u"AVTE_NAME";
    case AVTE_KEYWORD:
        return u"AVTE_KEYWORD";
    case AVTE_BOOLEAN:
        return u"AVTE_BOOLEAN";
    case AVTE_TEXT:
        return u"AVTE_TEXT";
    case AVTE_MIMEMEDIA:
        return u"AVTE_MIMEMEDIA";
    case AVTE_URI:
        return u"AVTE_URI";
    case AVTE_LIST:
        return u"AVTE_LIST";
    }
    return u"UNKNOWN!";
}

} // namespace zent
