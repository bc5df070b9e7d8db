#include "ocore/OrdoParse/SOrdoDomDoc.h"

#include <utility>

#include "ocore/Attributes/AVTE.h"
#include "platform/KeepForever.h"

namespace zent {

namespace {

using SyntaxCode = std::pair<const CXString&, CXString>;

/// The codes that syntaxes travel under. What isn't here passes unchanged.
const auto& syntaxCodes = keepForever<std::vector<SyntaxCode>>(std::initializer_list<SyntaxCode>{
    {syntax::boolean, u"b"},
    {syntax::integer, u"i"},
    {syntax::setOf, u"s"},
    {syntax::collection, u"c"},
    {syntax::keyword, u"k"},
    {syntax::rangeOfInteger, u"r"},
    {syntax::enumeration, u"e"},
    {syntax::name, u"n"},
    {syntax::text, u"t"},
    {syntax::uri, u"u"},
    {syntax::mimeMediaType, u"m"},
    {syntax::resolution, u"o"},
});

} // namespace

std::string_view SOrdoDomDoc::getSkeletonDocument() const {
    return R"(<?xml version="1.0" encoding="UTF-8"?><sordo xml:lang="en-US"> </sordo>)";
}

std::u16string_view SOrdoDomDoc::getSyntaxAttributeName() const { return u"s"; }

CXString SOrdoDomDoc::syntaxToDocument(const CXString& syntax) const {
    for (const auto& [keyword, code] : syntaxCodes) {
        if (syntax == keyword) {
            return code;
        }
    }
    return syntax;
}

CXString SOrdoDomDoc::syntaxFromDocument(const CXString& text) const {
    for (const auto& [keyword, code] : syntaxCodes) {
        if (text == code) {
            return keyword;
        }
    }
    return text;
}

} // namespace zent
