// Queues and documents keep state blobs in great number, so that the ticket in one is short: names
// and values travel as the abbreviations of the feature tables. What has none travels as it is.
// Texts that a decoder would take for an abbreviation are marked, so that every list comes back as
// it was.

#include <utility>

#include "ocore/AnlXlate/XmlForms.h"
#include "ocore/Attributes/AVTE.h"
#include "ocore/Attributes/IppList.h"
#include "ocore/FeatureSettings/FeatureDataBase.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/FeatureSettings/FeatureValueDataBase.h"
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

CXString toCode(const CXString& syntax) {
    for (const auto& [keyword, code] : syntaxCodes) {
        if (syntax == keyword) {
            return code;
        }
    }
    return syntax;
}

CXString fromCode(const CXString& text) {
    for (const auto& [keyword, code] : syntaxCodes) {
        if (text == code) {
            return keyword;
        }
    }
    return text;
}

constexpr char16_t mark = u'*';

using MemberCode = std::pair<CXString, CXString>;
const auto& memberCodes = keepForever<std::vector<MemberCode>>(std::initializer_list<MemberCode>{
    {u"value", u"V"},
    {u"lower-bound", u"L"},
    {u"upper-bound", u"U"},
    {u"cross-feed", u"C"},
    {u"feed-direction", u"F"},
    {u"units", u"T"},
});

/// Goes through a list and all lists within it, the embedded ones first. The feature that the last
/// node stood for is carried along, since a value is abbreviated by its feature's table.
template <typename Coder>
void walk(AttrNodeList& list, FeatureEnum& current, Coder& coder, bool isWritten = true) {
    for (std::uint32_t i = 0; i < list.getNumberOfNodes(); ++i) {
        AttrNode& node = list.getNodeAt(i);
        AttrValue& value = node.getAttrValue();
        const bool isNodeWritten = isWritten && !node.isPrivate();
        if (value.isList()) {
            walk(static_cast<IppList&>(value).getAttrNodeList(), current, coder, isNodeWritten);
        }
        coder.renameNode(node, current, isNodeWritten);
        if (!value.isList()) {
            coder.changeValue(value, current);
        }
    }
}

/// An element without content isn't read back.
bool isReadBack(const AttrValue& value) {
    if (!value.isList()) {
        return !value.getIppValue().isEmpty();
    }
    const AttrNodeList& members = static_cast<const IppList&>(value).getAttrNodeList();
    for (std::uint32_t i = 0; i < members.getNumberOfNodes(); ++i) {
        if (!members.getNodeAt(i).isPrivate()) {
            return true;
        }
    }
    return false;
}

/// The reader comes to fewer nodes, since private and empty ones don't reach it, and restores no
/// value before it has come to a feature. Until then values keep their texts.
class Encoder {
public:
    void renameNode(AttrNode& node, FeatureEnum& current, bool isWritten) {
        const bool reachesReader = isWritten && isReadBack(node.getAttrValue());
        if (const FeatureInfo* const feature = m_features.findFeatureInfo(node.getName())) {
            current = feature->m_feature;
            m_readerHasFeature = m_readerHasFeature || reachesReader;
            node.setAttrID(AttrID(feature->m_abbreviation));
            return;
        }
        for (const auto& [name, code] : memberCodes) {
            if (node.getName() == name) {
                node.setAttrID(AttrID(code));
                return;
            }
        }
        current = feature::none;
        m_readerHasFeature = m_readerHasFeature && !reachesReader;
    }

    void changeValue(AttrValue& value, FeatureEnum current) const {
        const CXString text = value.getIppValue();
        if (text.view().starts_with(mark) || m_values.hasAbbreviation(text)) {
            value.setIppValue(mark + text);
        } else if (current != feature::none && m_readerHasFeature) {
            const FeatureValueReference known = m_values.findFeatureValueInfo(current, text);
            if (known && !known->m_abbreviation.isEmpty()) {
                value.setIppValue(known->m_abbreviation);
            }
        }
    }

private:
    FeatureDataBase m_features;
    FeatureValueDataBase m_values;
    bool m_readerHasFeature = false;
};

class Decoder {
public:
    void renameNode(AttrNode& node, FeatureEnum& current, bool /*isWritten*/) const {
        if (const FeatureInfo* const feature =
                m_features.findFeatureInfoByAbbreviation(node.getName())) {
            current = feature->m_feature;
            node.setAttrID(AttrID(feature->m_nestedID.getName()));
            return;
        }
        for (const auto& [name, code] : memberCodes) {
            if (node.getName() == code) {
                node.setAttrID(AttrID(name));
                return;
            }
        }
        current = feature::none;
    }

    void changeValue(AttrValue& value, FeatureEnum current) const {
        CXString text = value.getIppValue();
        if (text.length() >= 2 && text.view().starts_with(mark)) {
            const CXString rest = text.mid(1);
            const bool isMarkedCode = m_values.hasAbbreviation(rest);
            if (isMarkedCode || rest.view().starts_with(mark)) {
                value.setIppValue(rest);
                text = rest;
            }
            if (isMarkedCode) {
                return;
            }
        }
        if (current == feature::none) {
            return;
        }
        if (const FeatureValueInfo* const known =
                m_values.findFeatureValueInfoByAbbreviation(text)) {
            value.setIppValue(known->m_text);
        }
    }

private:
    FeatureDataBase m_features;
    FeatureValueDataBase m_values;
};

template <typename Coder>
void change(AttrNodeList& list) {
    FeatureEnum current = feature::none;
    Coder coder;
    walk(list, current, coder);
}

} // namespace

constinit const XmlForm xmlForm::smallOrdo{
    .skeleton = R"(<?xml version="1.0" encoding="UTF-8"?><sordo xml:lang="en-US"> </sordo>)",
    .syntaxAttribute = u"s",
    .syntaxToDocument = toCode,
    .syntaxFromDocument = fromCode,
    .encode = change<Encoder>,
    .decode = change<Decoder>,
    .origin = XmlOrigin::stateBlob,
    .isFormatted = false};

} // namespace zent
