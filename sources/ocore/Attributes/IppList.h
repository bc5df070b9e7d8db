#pragma once

#include "ocore/Attributes/AttrNodeList.h"
#include "ocore/Attributes/AttrValue.h"

namespace zent {

/// A compound value: a node list with the keyword that says how to read it.
///
/// - "rangeOfInteger": "lower-bound" and "upper-bound", integers
/// - "resolution": "cross-feed", "feed-direction" and "units", integers
/// - "collection": one node for each member attribute, under the member's name
/// - "1setOf": one node named "value" for each member
class IppList : public AttrValue {
public:
    explicit IppList(const CXString& syntax = zent::syntax::setOf)
        : AttrValue(AVTE_LIST), m_syntax(syntax) {}
    IppList(const AttrNodeList& nodes, const CXString& syntax)
        : AttrValue(AVTE_LIST), m_syntax(syntax), m_nodes(nodes) {}
    IppList(AttrNodeList&& nodes, const CXString& syntax)
        : AttrValue(AVTE_LIST), m_syntax(syntax), m_nodes(std::move(nodes)) {}

    const CXString& getIppSyntax() const override { return m_syntax; }
    CXString getIppValue() const override { return {}; }
    void setIppValue(const CXString& /*text*/) override {}
    std::unique_ptr<AttrValue> clone() const override;
    bool isEqual(const AttrValue& other) const override;
    void dump() const override;

    const AttrNodeList& getAttrNodeList() const { return m_nodes; }
    AttrNodeList& getAttrNodeList() { return m_nodes; }

private:
    CXString m_syntax;
    AttrNodeList m_nodes;
};

} // namespace zent
