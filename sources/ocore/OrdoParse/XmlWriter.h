#pragma once

#include <array>
#include <string>

#include <xercesc/framework/XMLFormatter.hpp>

#include "ocore/OrdoParse/XmlDocument.h"
#include "ocore/OrdoParse/XmlLimits.h"

namespace zent {

/// Writes nodes of a document through the library's formatter, which encodes and escapes, in this
/// system's own layout: line ends are CR LF, and with formatting on, each element stands on a line
/// of its own, one tab deeper than its parent. An element that holds text stays on one line. One
/// that begins with text and goes on with elements keeps those at its own depth.
///
/// What goes out can be read again: a character that XML 1.0 doesn't allow, and half a surrogate
/// pair, go out as U+FFFD. A document beyond the bounds of reading isn't written to its end.
class XmlWriter {
public:
    XmlWriter(xercesc::XMLFormatter& formatter, bool formatted,
              XmlOrigin origin = XmlOrigin::document);

    /// Writes a node with all that it holds. Raises OrdoParseException (code 4) beyond a bound.
    void write(const XmlNode& node);
    /// Hands on what was collected; to be called at the end.
    void flush();

private:
    void writeChildren(const XmlNode& node);
    void writeElement(const XmlNode& element);
    void writeXmlDeclaration(const XmlNode& declaration);
    void writeDocumentType(const XmlNode& type);
    void writeEntity(const XmlNode& entity);
    /// Writes `lead` and the value of the attribute in quotes; nothing if there is no such
    /// attribute.
    void writeQuoted(const XmlNode& node, std::u16string_view attribute, std::u16string_view lead);
    void writeLineBreak();
    void noteNode();
    void writeMarkup(std::u16string_view text);
    void writeEscaped(std::u16string_view text, xercesc::XMLFormatter::EscapeFlags escapes);

    xercesc::XMLFormatter& m_formatter;
    xercesc::XMLFormatter::UnRepFlags m_unrepresentable;
    bool m_formatted;
    std::size_t m_mostUnits;
    // Nodes are counted as the reader will count them.
    std::size_t m_nodes = 0;
    std::size_t m_units = 0;
    std::uint32_t m_depth = 0;
    std::u16string m_indent;
    // Markup, and text without anything to escape, is collected: for the formatter a piece costs
    // more than a character. One unit is left for the terminator that it may look at.
    std::array<char16_t, 4096> m_collected;
    std::size_t m_length = 0;
};

} // namespace zent
