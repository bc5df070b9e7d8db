#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "ocore/Attributes/AttrNodeList.h"
#include "ocore/OrdoParse/XmlForm.h"

namespace zent {

class SharedTexts;
class TarvoXmlParser;
class Stream;

/// A document of one XML form, and the way between it and a node list.
///
/// One object serves one reading (parse, toAttrNodeList) or one writing (fromAttrNodeList,
/// toXmlStream). Failures are raised as OrdoParseException, but for those of making values, which
/// pass unchanged.
class TarvoDomDoc {
public:
    /// Starts the XML system if it isn't running. The form must outlive the document.
    TarvoDomDoc(const XmlForm& form, XmlOrigin origin, const CXString& streamName, bool validate);
    ~TarvoDomDoc();
    TarvoDomDoc(const TarvoDomDoc&) = delete;
    TarvoDomDoc& operator=(const TarvoDomDoc&) = delete;

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

private:
    void walk(const XmlNode& parent, AttrNodeList& list, SharedTexts& texts) const;
    void addDomNodeToAttrNodeList(const XmlNode& element, const XmlAttribute& syntax,
                                  AttrNodeList& list, SharedTexts& texts) const;
    void addAttrNodeToDOMTree(XmlDocument& document, XmlNode& parent, const AttrNode& node) const;

    const XmlForm& m_form;
    std::unique_ptr<TarvoXmlParser> m_parser;
};

} // namespace zent
