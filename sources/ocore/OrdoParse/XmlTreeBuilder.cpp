#include "ocore/OrdoParse/XmlTreeBuilder.h"

#include <algorithm>

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMDocumentType.hpp>
#include <xercesc/framework/XMLAttr.hpp>
#include <xercesc/framework/XMLElementDecl.hpp>
#include <xercesc/framework/XMLNotationDecl.hpp>
#include <xercesc/internal/XMLScanner.hpp>
#include <xercesc/sax/ErrorHandler.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/validators/DTD/DTDElementDecl.hpp>
#include <xercesc/validators/DTD/DTDEntityDecl.hpp>

#include "ocore/OrdoParse/ParserMemory.h"
#include "ocore/OrdoParse/XmlLimits.h"

namespace zent {

namespace {

std::u16string_view viewOf(const XMLCh* text) {
    return text == nullptr ? std::u16string_view() : std::u16string_view(text);
}

} // namespace

XmlTreeBuilder::XmlTreeBuilder(XmlDocument& document, const XmlBounds& bounds, ParserMemory& memory,
                               xercesc::XMLGrammarPool* grammars)
    : XercesDOMParser(nullptr, &memory, grammars), m_document(document), m_bounds(bounds),
      m_memory(memory), m_current(&document.getNode()) {}

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
    const std::u16string_view name = share(viewOf(root.getFullName()));
    if (std::max(viewOf(publicId).size(), viewOf(systemId).size()) > xmlLimits::identifierUnits) {
        refuse(u"An identifier is longer than 4096 characters.");
    }
    XercesDOMParser::doctypeDecl(root, publicId, systemId, hasInternalSubset, hasExternalSubset);
    m_documentType = &m_document.append(*m_current, XmlNodeKind::documentType, name, {});
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
    m_memory.noteEvent();
    // A content model becomes an automaton, which can have exponentially many states.
    if (m_inInternalSubset) {
        refuse(u"A document can't declare element types of its own.");
    }
    XercesDOMParser::elementDecl(declaration, isIgnored);
}

void XmlTreeBuilder::startAttList(const xercesc::DTDElementDecl& declaration) {
    m_memory.noteEvent();
    // The library doesn't count the entities that are expanded in the default of an attribute.
    if (m_inInternalSubset) {
        refuse(u"A document can't declare attributes of its own.");
    }
    XercesDOMParser::startAttList(declaration);
}

void XmlTreeBuilder::entityDecl(const xercesc::DTDEntityDecl& declaration, bool isParameterEntity,
                                bool isIgnored) {
    m_memory.noteEvent();
    // The library doesn't count how often parameter entities are expanded.
    if (m_inInternalSubset && isParameterEntity) {
        refuse(u"A document can't declare parameter entities of its own.");
    }
    if (m_inInternalSubset && !m_bounds.mayDeclareEntities) {
        refuse(u"A ticket in a state blob can't declare entities.");
    }
    noteDeclaration(viewOf(declaration.getName()));
    if (declaration.getValueLen() > xmlLimits::entityUnits) {
        refuse(u"The text of an entity is longer than 65536 characters.");
    }
    XercesDOMParser::entityDecl(declaration, isParameterEntity, isIgnored);
}

void XmlTreeBuilder::notationDecl(const xercesc::XMLNotationDecl& declaration, bool isIgnored) {
    m_memory.noteEvent();
    noteDeclaration(viewOf(declaration.getName()));
    XercesDOMParser::notationDecl(declaration, isIgnored);
}

/// Counts a declaration, since the library takes ever longer to add one to its tables.
void XmlTreeBuilder::noteDeclaration(std::u16string_view name) {
    if (m_inInternalSubset && ++m_declarations > xmlLimits::declarations) {
        refuse(u"The document declares more than 1000 entities and notations.");
    }
    if (name.size() > xmlLimits::nameUnits) {
        refuse(u"A name is longer than 255 characters.");
    }
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
    noteNodes(1 + attributeCount);
    XmlNode& node = m_document.append(*m_current, XmlNodeKind::element, nameOf(declaration), {});
    if (attributeCount > 0) {
        addAttributes(node, attributes, attributeCount);
    }
    if (!isEmpty) {
        m_current = &node;
        ++m_depth;
    }
}

void XmlTreeBuilder::addAttributes(XmlNode& node,
                                   const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                                   XMLSize_t count) {
    if (count > xmlLimits::attributesOfElement) {
        refuse(u"An element has more than 1000 attributes.");
    }
    m_attributeComparisons += static_cast<std::uint64_t>(count) * count;
    if (m_attributeComparisons > xmlLimits::attributeComparisons) {
        refuse(u"Too many elements have many attributes.");
    }
    for (XMLSize_t i = 0; i < count; ++i) {
        const xercesc::XMLAttr& attribute = *attributes.elementAt(i);
        m_document.addAttribute(node, share(viewOf(attribute.getName())),
                                shareValue(viewOf(attribute.getValue())));
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
        addNode(XmlNodeKind::cdataSection, {}, {text, length});
        return;
    }
    if (m_units + m_text.size() + length > m_bounds.textUnits) {
        refuse(u"The document's text is too long.");
    }
    m_text.append(text, length);
}

void XmlTreeBuilder::ignorableWhitespace(const XMLCh* text, XMLSize_t length,
                                         bool /*isCdataSection*/) {
    docCharacters(text, length, false);
}

void XmlTreeBuilder::docComment(const XMLCh* text) {
    addNode(XmlNodeKind::comment, {}, viewOf(text));
}

void XmlTreeBuilder::docPI(const XMLCh* target, const XMLCh* data) {
    addNode(XmlNodeKind::processingInstruction, share(viewOf(target)), viewOf(data));
}

void XmlTreeBuilder::startEntityReference(const xercesc::XMLEntityDecl& declaration) {
    ++m_openEntities;
    m_expandedUnits += declaration.getValueLen();
    if (m_expandedUnits > xmlLimits::expandedUnits) {
        refuse(u"References to entities bring in more than 16777216 characters.");
    }
}

void XmlTreeBuilder::endEntityReference(const xercesc::XMLEntityDecl& /*declaration*/) {
    --m_openEntities;
}

void XmlTreeBuilder::addNode(XmlNodeKind kind, std::u16string_view name,
                             std::u16string_view value) {
    flushText();
    noteNodes(1);
    m_document.append(*m_current, kind, name, store(value));
}

/// Makes one node of text that comes in pieces, such as that around an entity.
void XmlTreeBuilder::flushText() {
    constexpr std::size_t keptCapacity = std::size_t{64} * 1024;
    if (m_text.empty()) {
        return;
    }
    noteNodes(1);
    m_document.append(*m_current, XmlNodeKind::text, {}, store(m_text));
    m_text.clear();
    if (m_text.capacity() > keptCapacity) {
        m_text.shrink_to_fit();
    }
}

void XmlTreeBuilder::noteNodes(std::size_t count) {
    m_memory.noteEvent();
    m_nodes += count;
    m_entityNodes += m_openEntities > 0 ? count : 0;
    if (m_nodes > xmlLimits::nodes) {
        refuse(u"The document has more than 1000000 nodes.");
    }
    if (m_entityNodes > xmlLimits::entityNodes) {
        refuse(u"References to entities bring in more than 200000 nodes.");
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
    m_boundPassed = true;
    getErrorHandler()->fatalError(xercesc::SAXParseException(
        reason, *getScanner()->getLocator(), xercesc::XMLPlatformUtils::fgMemoryManager));
    throw Refusal();
}

// Texts

std::u16string_view XmlTreeBuilder::store(std::u16string_view text) {
    m_units += text.size();
    if (m_units > m_bounds.textUnits) {
        refuse(u"The document's text is too long.");
    }
    return m_document.store(text);
}

/// Gives the value of an attribute a text that lives as long as the document. Most documents have
/// few different values, so that equal ones share a text.
std::u16string_view XmlTreeBuilder::shareValue(std::u16string_view value) {
    if (value.empty()) {
        return {};
    }
    std::u16string_view& known =
        m_knownValues[(value.size() + value.front()) % m_knownValues.size()];
    if (known != value) {
        known = store(value);
    }
    return known;
}

/// Gives a name that isn't one of a declared element a text that lives as long as the document.
std::u16string_view XmlTreeBuilder::share(std::u16string_view name) {
    std::u16string_view& known = m_sharedNames[name.size() % m_sharedNames.size()];
    if (known == name) {
        return known;
    }
    if (const auto found = m_names.find(name); found != m_names.end()) {
        return known = *found;
    }
    if (name.size() > xmlLimits::nameUnits) {
        refuse(u"A name is longer than 255 characters.");
    }
    if (m_names.size() == xmlLimits::names) {
        refuse(u"The document has more than 4096 different names.");
    }
    return known = *m_names.insert(m_document.store(name)).first;
}

/// The name of a declared element. All elements of one name share a declaration, by whose address
/// the text is found.
std::u16string_view XmlTreeBuilder::nameOf(const xercesc::XMLElementDecl& declaration) {
    const auto place = reinterpret_cast<std::uintptr_t>(&declaration) / alignof(std::max_align_t);
    KnownName& known = m_knownNames[(place ^ (place >> 6)) % m_knownNames.size()];
    if (known.declaration != &declaration) {
        const std::u16string_view name = viewOf(declaration.getFullName());
        known = {&declaration, declaration.isDeclared() ? m_document.store(name) : share(name)};
        if (!declaration.isDeclared()) {
            noteUndeclared(declaration);
        }
    }
    return known.name;
}

/// Counts an element that the document type doesn't declare, once for each name: the library
/// numbers its declarations as they come.
void XmlTreeBuilder::noteUndeclared(const xercesc::XMLElementDecl& declaration) {
    if (declaration.getId() > m_lastUndeclared) {
        m_lastUndeclared = declaration.getId();
        if (!m_undeclared.add(declaration.getFullName())) {
            refuse(u"Too many names have the same hash.");
        }
    }
}

void XmlTreeBuilder::addAttribute(XmlNode& node, std::u16string_view name, const XMLCh* value) {
    if (const std::u16string_view text = viewOf(value); !text.empty()) {
        m_document.addAttribute(node, name, store(text));
    }
}

} // namespace zent
