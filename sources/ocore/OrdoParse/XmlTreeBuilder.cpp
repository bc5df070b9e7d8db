#include "ocore/OrdoParse/XmlTreeBuilder.h"

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMDocumentType.hpp>
#include <xercesc/framework/XMLAttr.hpp>
#include <xercesc/framework/XMLElementDecl.hpp>
#include <xercesc/internal/XMLScanner.hpp>
#include <xercesc/sax/ErrorHandler.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/validators/DTD/DTDElementDecl.hpp>
#include <xercesc/validators/DTD/DTDEntityDecl.hpp>

#include "ocore/OrdoParse/XmlLimits.h"

namespace zent {

namespace {

std::u16string_view viewOf(const XMLCh* text) {
    return text == nullptr ? std::u16string_view() : std::u16string_view(text);
}

} // namespace

XmlTreeBuilder::XmlTreeBuilder(XmlDocument& document, xercesc::MemoryManager& memory,
                               xercesc::XMLGrammarPool* grammars)
    : XercesDOMParser(nullptr, &memory, grammars), m_document(document),
      m_current(&document.getNode()) {}

// Prolog

void XmlTreeBuilder::XMLDecl(const XMLCh* version, const XMLCh* encoding, const XMLCh* standalone,
                             const XMLCh* /*actualEncoding*/) {
    XmlNode& node = m_document.append(*m_current, XmlNodeKind::xmlDeclaration, {}, {});
    addAttribute(node, u"version", version);
    addAttribute(node, u"encoding", encoding);
    addAttribute(node, u"standalone", standalone);
}

void XmlTreeBuilder::doctypeDecl(const xercesc::DTDElementDecl& root, const XMLCh* publicId,
                                 const XMLCh* systemId, bool hasInternalSubset,
                                 bool hasExternalSubset) {
    XercesDOMParser::doctypeDecl(root, publicId, systemId, hasInternalSubset, hasExternalSubset);
    m_documentType = &m_document.append(*m_current, XmlNodeKind::documentType,
                                        store(viewOf(root.getFullName())), {});
    addAttribute(*m_documentType, u"PUBLIC", publicId);
    addAttribute(*m_documentType, u"SYSTEM", systemId);
}

void XmlTreeBuilder::startIntSubset() {
    XercesDOMParser::startIntSubset();
    m_inInternalSubset = true;
}

void XmlTreeBuilder::endIntSubset() {
    XercesDOMParser::endIntSubset();
    m_inInternalSubset = false;
    const XMLCh* const subset = getDocument()->getDoctype()->getInternalSubset();
    m_document.setValue(*m_documentType, store(viewOf(subset)));
}

void XmlTreeBuilder::elementDecl(const xercesc::DTDElementDecl& declaration, bool isIgnored) {
    // A content model becomes an automaton, which can have exponentially many states.
    if (m_inInternalSubset) {
        refuse(u"A document can't declare element types of its own.");
    }
    XercesDOMParser::elementDecl(declaration, isIgnored);
}

void XmlTreeBuilder::startAttList(const xercesc::DTDElementDecl& declaration) {
    // The library doesn't count the entities that are expanded in the default of an attribute.
    if (m_inInternalSubset) {
        refuse(u"A document can't declare attributes of its own.");
    }
    XercesDOMParser::startAttList(declaration);
}

void XmlTreeBuilder::entityDecl(const xercesc::DTDEntityDecl& declaration, bool isParameterEntity,
                                bool isIgnored) {
    // The library doesn't count how often parameter entities are expanded.
    if (m_inInternalSubset && isParameterEntity) {
        refuse(u"A document can't declare parameter entities of its own.");
    }
    if (declaration.getValueLen() > xmlLimits::entityUnits) {
        refuse(u"The text of an entity is longer than 65536 characters.");
    }
    XercesDOMParser::entityDecl(declaration, isParameterEntity, isIgnored);
}

// Content

void XmlTreeBuilder::startElement(const xercesc::XMLElementDecl& declaration,
                                  unsigned int /*uriId*/, const XMLCh* /*prefix*/,
                                  const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                                  XMLSize_t attributeCount, bool isEmpty, bool /*isRoot*/) {
    flushText();
    if (m_depth == xmlLimits::depth) {
        refuse(u"Elements are nested deeper than 100 levels.");
    }
    if (++m_elements > xmlLimits::elements) {
        refuse(u"The document has more than 1000000 elements.");
    }
    if (attributeCount > xmlLimits::attributesOfElement) {
        refuse(u"An element has more than 1000 attributes.");
    }
    XmlNode& node = m_document.append(*m_current, XmlNodeKind::element, nameOf(declaration), {});
    for (XMLSize_t i = 0; i < attributeCount; ++i) {
        const xercesc::XMLAttr& attribute = *attributes.elementAt(i);
        m_document.addAttribute(node, store(attribute.getName()), store(attribute.getValue()));
    }
    if (!isEmpty) {
        m_current = &node;
        ++m_depth;
    }
}

void XmlTreeBuilder::endElement(const xercesc::XMLElementDecl& /*declaration*/,
                                unsigned int /*uriId*/, bool /*isRoot*/, const XMLCh* /*prefix*/) {
    flushText();
    // A document that isn't well-formed can end more elements than it began.
    if (m_depth > 0) {
        m_current = m_current->getParent();
        --m_depth;
    }
}

void XmlTreeBuilder::docCharacters(const XMLCh* text, XMLSize_t length, bool isCdataSection) {
    if (m_depth == 0) {
        return;
    }
    if (isCdataSection) {
        flushText();
        m_document.append(*m_current, XmlNodeKind::cdataSection, {}, store({text, length}));
        return;
    }
    if (m_text.size() + length > xmlLimits::textUnits) {
        refuse(u"The document's text is longer than 67108864 characters.");
    }
    m_text.append(text, length);
}

void XmlTreeBuilder::ignorableWhitespace(const XMLCh* text, XMLSize_t length,
                                         bool /*isCdataSection*/) {
    docCharacters(text, length, false);
}

void XmlTreeBuilder::docComment(const XMLCh* text) {
    flushText();
    m_document.append(*m_current, XmlNodeKind::comment, {}, store(viewOf(text)));
}

void XmlTreeBuilder::docPI(const XMLCh* target, const XMLCh* data) {
    flushText();
    m_document.append(*m_current, XmlNodeKind::processingInstruction, store(viewOf(target)),
                      store(viewOf(data)));
}

void XmlTreeBuilder::startEntityReference(const xercesc::XMLEntityDecl& /*declaration*/) {}
void XmlTreeBuilder::endEntityReference(const xercesc::XMLEntityDecl& /*declaration*/) {}

/// Text that comes in pieces, such as that around an entity, is one node.
void XmlTreeBuilder::flushText() {
    if (!m_text.empty()) {
        m_document.append(*m_current, XmlNodeKind::text, {}, store(m_text));
        m_text.clear();
    }
}

// Faults

void XmlTreeBuilder::error(unsigned int code, const XMLCh* domain, ErrTypes type, const XMLCh* text,
                           const XMLCh* systemId, const XMLCh* publicId, XMLFileLoc line,
                           XMLFileLoc column) {
    XercesDOMParser::error(code, domain, type, text, systemId, publicId, line, column);
    if (++m_reports >= xmlLimits::reports) {
        throw Refusal();
    }
}

void XmlTreeBuilder::refuse(const XMLCh* reason) {
    getErrorHandler()->fatalError(xercesc::SAXParseException(
        reason, *getScanner()->getLocator(), xercesc::XMLPlatformUtils::fgMemoryManager));
    throw Refusal();
}

// Texts

std::u16string_view XmlTreeBuilder::store(std::u16string_view text) {
    m_units += text.size();
    if (m_units > xmlLimits::textUnits) {
        refuse(u"The document's text is longer than 67108864 characters.");
    }
    return m_document.store(text);
}

/// Few names occur over and over, and all elements of one name share a declaration.
std::u16string_view XmlTreeBuilder::nameOf(const xercesc::XMLElementDecl& declaration) {
    const auto place = reinterpret_cast<std::uintptr_t>(&declaration) / alignof(std::max_align_t);
    KnownName& known = m_knownNames[(place ^ (place >> 6)) % m_knownNames.size()];
    if (known.declaration != &declaration) {
        known = {&declaration, store(declaration.getFullName())};
    }
    return known.name;
}

void XmlTreeBuilder::addAttribute(XmlNode& node, std::u16string_view name, const XMLCh* value) {
    if (const std::u16string_view text = viewOf(value); !text.empty()) {
        m_document.addAttribute(node, name, store(text));
    }
}

} // namespace zent
