#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "ocore/Attributes/AttrNodeList.h"
#include "ocore/OrdoParse/XmlDocument.h"
#include "ocore/OrdoParse/XmlLimits.h"
#include "ocore/Text/CXString.h"

namespace zent {

class SharedTexts;
class TarvoXmlParser;
class Stream;

/// A document of one XML form, and the way between it and a node list. The forms differ in the
/// virtual operations alone.
///
/// One object serves one reading (parse, toAttrNodeList) or one writing (fromAttrNodeList,
/// toXmlStream). Failures are raised as OrdoParseException, but for those of making values, which
/// pass unchanged.
class TarvoDomDoc {
public:
    virtual ~TarvoDomDoc();
    TarvoDomDoc(const TarvoDomDoc&) = delete;
    TarvoDomDoc& operator=(const TarvoDomDoc&) = delete;

    /// Documents come as such unless it is set.
    void setOrigin(XmlOrigin origin);
    void parse(std::span<const std::byte> bytes);
    /// Adds what the parsed document holds. Below the root, an element with the syntax attribute is
    /// a value: a simple one if its first child is text (or a comment, whatever comes first), else
    /// a list of its elements. One without content yields nothing; one without the attribute is
    /// skipped with all that it holds, unless it is a container.
    void toAttrNodeList(AttrNodeList* list);
    /// Makes the document of a list: the skeleton, with an element for each node that isn't
    /// private.
    void fromAttrNodeList(const AttrNodeList& list);
    void toXmlStream(Stream& output, bool formatted);

protected:
    /// Starts the XML system if it isn't running.
    TarvoDomDoc();
    void createParser(const CXString& streamName, bool validate);

    /// The empty document of this form, a literal of the program.
    virtual std::string_view getSkeletonDocument() const = 0;
    /// The element that a top-level node goes under.
    virtual XmlNode& getParentNode(XmlDocument& document, XmlNode& root, const AttrNode& node);
    /// Whether an element without a syntax attribute is walked into, adding no level to the list.
    virtual bool isContainerNode(const XmlNode& element) const;
    /// The attribute that carries a value's syntax.
    virtual std::u16string_view getSyntaxAttributeName() const;
    /// A syntax keyword as it stands in the document, and back.
    virtual CXString syntaxToDocument(const CXString& syntax) const;
    virtual CXString syntaxFromDocument(const CXString& text) const;

private:
    void walk(const XmlNode& parent, AttrNodeList& list, SharedTexts& texts) const;
    void addDomNodeToAttrNodeList(const XmlNode& element, const XmlAttribute& syntax,
                                  AttrNodeList& list, SharedTexts& texts) const;
    void addAttrNodeToDOMTree(XmlDocument& document, XmlNode& parent, const AttrNode& node) const;

    std::unique_ptr<TarvoXmlParser> m_parser;
};

} // namespace zent
