#include "ocore/OrdoParse/XmlWriter.h"

#include <algorithm>

#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "ocore/OrdoParse/OrdoParseException.h"
#include "platform/Surrogates.h"

namespace zent {

namespace {

using platform::isHighSurrogate;
using platform::isLowSurrogate;
using xercesc::XMLFormatter;

constexpr char16_t replacement = u'\xFFFD';

/// Whether a unit can be written as it is, wherever it stands, without a closer look.
constexpr bool isPlain(char16_t unit) {
    return unit >= u' ' && unit < 0xD800 && unit != u'&' && unit != u'<' && unit != u'>' &&
           unit != u'"';
}

constexpr bool isAllowed(char16_t unit) {
    return (unit >= u' ' && unit < 0xFFFE) || unit == u'\t' || unit == u'\n' || unit == u'\r';
}

std::u16string withAllowedOnly(std::u16string_view text) {
    std::u16string result(text);
    for (std::size_t i = 0; i < result.size(); ++i) {
        if (isHighSurrogate(result[i]) && i + 1 < result.size() && isLowSurrogate(result[i + 1])) {
            ++i;
        } else if (!isAllowed(result[i]) || isHighSurrogate(result[i]) ||
                   isLowSurrogate(result[i])) {
            result[i] = replacement;
        }
    }
    return result;
}

[[noreturn]] void raiseUnreadable(const char16_t* reason, std::size_t bound) {
    raiseOrdoParse(ordoParseCode::outputFailed,
                   "XmlWriter::write(): The document would have more %s than %lu, and couldn't be "
                   "read again!\r\n",
                   reason, bound);
}

} // namespace

// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): what is collected is written first
XmlWriter::XmlWriter(XMLFormatter& formatter, bool formatted, XmlOrigin origin)
    : m_formatter(formatter),
      // UTF-8 has every character. If the formatter asked that for each, it would cost as much as
      // all the rest.
      m_unrepresentable(xercesc::XMLString::equals(formatter.getEncodingName(),
                                                   xercesc::XMLUni::fgUTF8EncodingString)
                            ? XMLFormatter::UnRep_Fail
                            : XMLFormatter::UnRep_CharRef),
      m_formatted(formatted), m_mostUnits(boundsOf(origin, xmlLimits::documentBytes).textUnits) {}

void XmlWriter::write(const XmlNode& node) {
    noteNode();
    switch (node.getKind()) {
    case XmlNodeKind::element:
        writeElement(node);
        break;
    case XmlNodeKind::text:
        writeEscaped(node.getValue(), XMLFormatter::CharEscapes);
        break;
    case XmlNodeKind::cdataSection:
        writeMarkup(u"<![CDATA[");
        writeMarkup(node.getValue());
        writeMarkup(u"]]>");
        break;
    case XmlNodeKind::entityReference:
    case XmlNodeKind::document:
        writeChildren(node);
        break;
    case XmlNodeKind::entity:
        writeEntity(node);
        break;
    case XmlNodeKind::processingInstruction:
        writeMarkup(u"<?");
        writeMarkup(node.getName());
        if (!node.getValue().empty()) {
            writeMarkup(u" ");
            writeMarkup(node.getValue());
        }
        writeMarkup(u"?>");
        break;
    case XmlNodeKind::comment:
        writeMarkup(u"<!--");
        writeMarkup(node.getValue());
        writeMarkup(u"-->");
        break;
    case XmlNodeKind::documentType:
        writeDocumentType(node);
        break;
    case XmlNodeKind::xmlDeclaration:
        writeXmlDeclaration(node);
        break;
    }
}

void XmlWriter::flush() {
    m_collected[m_length] = u'\0';
    m_formatter.formatBuf(m_collected.data(), m_length, XMLFormatter::NoEscapes, m_unrepresentable);
    m_length = 0;
}

void XmlWriter::writeChildren(const XmlNode& node) {
    for (const XmlNode* child = node.getFirstChild(); child != nullptr;
         child = child->getNextSibling()) {
        write(*child);
    }
}

void XmlWriter::noteNode() {
    if (++m_nodes > xmlLimits::nodes) {
        raiseUnreadable(u"nodes", xmlLimits::nodes);
    }
}

void XmlWriter::writeElement(const XmlNode& element) {
    if (m_depth == xmlLimits::depth) {
        raiseUnreadable(u"levels", xmlLimits::depth);
    }
    if (m_formatted) {
        writeLineBreak();
    }
    writeMarkup(u"<");
    writeMarkup(element.getName());
    for (const XmlAttribute* attribute = element.getFirstAttribute(); attribute != nullptr;
         attribute = attribute->next) {
        noteNode();
        writeMarkup(u" ");
        writeMarkup(attribute->name);
        writeMarkup(u"=\"");
        writeEscaped(attribute->value, XMLFormatter::AttrEscapes);
        writeMarkup(u"\"");
    }
    const XmlNode* const first = element.getFirstChild();
    if (first == nullptr) {
        writeMarkup(u"/>");
        return;
    }
    writeMarkup(u">");

    const std::size_t outerIndent = m_indent.size();
    const std::size_t innerIndent = outerIndent + (first->isElement() ? 1 : 0);
    bool holdsText = false;
    ++m_depth;
    for (const XmlNode* child = first; child != nullptr; child = child->getNextSibling()) {
        m_indent.resize(innerIndent + (child->isElement() ? 0 : 1), u'\t');
        holdsText = holdsText || child->getKind() == XmlNodeKind::text;
        write(*child);
    }
    --m_depth;
    m_indent.resize(outerIndent);

    if (m_formatted && !holdsText) {
        writeLineBreak();
    }
    writeMarkup(u"</");
    writeMarkup(element.getName());
    writeMarkup(u">");
}

void XmlWriter::writeXmlDeclaration(const XmlNode& declaration) {
    writeQuoted(declaration, u"version", u"<?xml version=");
    writeMarkup(u" encoding=\"");
    writeMarkup(m_formatter.getEncodingName());
    writeMarkup(u"\"");
    writeQuoted(declaration, u"standalone", u" standalone=");
    writeMarkup(u"?>\r\n");
}

void XmlWriter::writeDocumentType(const XmlNode& type) {
    writeMarkup(u"<!DOCTYPE ");
    writeMarkup(type.getName());
    writeQuoted(type, u"PUBLIC", u" PUBLIC ");
    writeQuoted(type, u"SYSTEM", u" SYSTEM ");
    if (!type.getValue().empty()) {
        writeMarkup(u"[");
        writeMarkup(type.getValue());
        writeMarkup(u"]");
    }
    writeMarkup(u">");
}

void XmlWriter::writeEntity(const XmlNode& entity) {
    writeMarkup(u"<!ENTITY ");
    writeMarkup(entity.getName());
    writeQuoted(entity, u"PUBLIC", u"PUBLIC ");
    writeQuoted(entity, u"SYSTEM", u"SYSTEM ");
    writeQuoted(entity, u"NDATA", u"NDATA ");
    writeMarkup(u">\r\n");
}

void XmlWriter::writeQuoted(const XmlNode& node, std::u16string_view attribute,
                            std::u16string_view lead) {
    if (const XmlAttribute* const found = node.findAttribute(attribute)) {
        writeMarkup(lead);
        writeMarkup(u"\"");
        writeMarkup(found->value);
        writeMarkup(u"\"");
    }
}

void XmlWriter::writeLineBreak() {
    noteNode(); // white space counts as a node as well
    writeMarkup(u"\r\n");
    writeMarkup(m_indent);
}

void XmlWriter::writeMarkup(std::u16string_view text) {
    constexpr std::size_t room = std::tuple_size_v<decltype(m_collected)> - 1;
    if (text.size() > room - m_length) {
        flush();
        if (text.size() > room) {
            m_formatter.formatBuf(std::u16string(text).c_str(), text.size(),
                                  XMLFormatter::NoEscapes, m_unrepresentable);
            return;
        }
    }
    std::ranges::copy(text, m_collected.data() + m_length);
    m_length += text.size();
}

void XmlWriter::writeEscaped(std::u16string_view text, XMLFormatter::EscapeFlags escapes) {
    m_units += text.size();
    if (m_units > m_mostUnits) {
        raiseUnreadable(u"characters of text", m_mostUnits);
    }
    if (std::ranges::all_of(text, isPlain)) {
        writeMarkup(text);
        return;
    }
    flush();
    const std::u16string allowed = withAllowedOnly(text);
    m_formatter.formatBuf(allowed.c_str(), allowed.size(), escapes, m_unrepresentable);
}

} // namespace zent
