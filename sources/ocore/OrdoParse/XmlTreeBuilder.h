#pragma once

#include <array>
#include <string>
#include <string_view>
#include <unordered_set>

#include <xercesc/parsers/XercesDOMParser.hpp>

#include "ocore/OrdoParse/NameChains.h"
#include "ocore/OrdoParse/XmlDocument.h"
#include "ocore/OrdoParse/XmlLimits.h"

namespace zent {

class ParserMemory;

/// The library's DOM parser, with the content of a document put into an XmlDocument in place of the
/// library's own tree, which gets the document type alone. Entity references are expanded, and
/// ignorable white space stays as text.
///
/// It also keeps the bounds on documents that the library has no setting for. Beyond one of them it
/// reports a fatal error and throws a Refusal; so it does after too many faults.
///
/// For one parse of one document.
class XmlTreeBuilder final : public xercesc::XercesDOMParser {
public:
    struct Refusal {};

    /// `grammars` may be null.
    XmlTreeBuilder(XmlDocument& document, const XmlBounds& bounds, ParserMemory& memory,
                   xercesc::XMLGrammarPool* grammars);

    /// Whether a bound was what stopped the parse.
    bool isBoundPassed() const { return m_boundPassed; }

    void XMLDecl(const XMLCh* version, const XMLCh* encoding, const XMLCh* standalone,
                 const XMLCh* actualEncoding) override;
    void doctypeDecl(const xercesc::DTDElementDecl& root, const XMLCh* publicId,
                     const XMLCh* systemId, bool hasInternalSubset,
                     bool hasExternalSubset) override;
    void startIntSubset() override;
    void endIntSubset() override;
    void elementDecl(const xercesc::DTDElementDecl& declaration, bool isIgnored) override;
    void startAttList(const xercesc::DTDElementDecl& declaration) override;
    void entityDecl(const xercesc::DTDEntityDecl& declaration, bool isParameterEntity,
                    bool isIgnored) override;
    void notationDecl(const xercesc::XMLNotationDecl& declaration, bool isIgnored) override;

    void startElement(const xercesc::XMLElementDecl& declaration, unsigned int uriId,
                      const XMLCh* prefix, const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                      XMLSize_t attributeCount, bool isEmpty, bool isRoot) override;
    void endElement(const xercesc::XMLElementDecl& declaration, unsigned int uriId, bool isRoot,
                    const XMLCh* prefix) override;
    void docCharacters(const XMLCh* text, XMLSize_t length, bool isCdataSection) override;
    void ignorableWhitespace(const XMLCh* text, XMLSize_t length, bool isCdataSection) override;
    void docComment(const XMLCh* text) override;
    void docPI(const XMLCh* target, const XMLCh* data) override;
    void startEntityReference(const xercesc::XMLEntityDecl& declaration) override;
    void endEntityReference(const xercesc::XMLEntityDecl& declaration) override;

    void error(unsigned int code, const XMLCh* domain, ErrTypes type, const XMLCh* text,
               const XMLCh* systemId, const XMLCh* publicId, XMLFileLoc line,
               XMLFileLoc column) override;

private:
    struct KnownName {
        const void* declaration = nullptr;
        std::u16string_view name;
    };

    [[noreturn]] void refuse(const XMLCh* reason);
    void noteDeclaration(std::u16string_view name);
    void noteNodes(std::size_t count);
    void addNode(XmlNodeKind kind, std::u16string_view name, std::u16string_view value);
    void addAttributes(XmlNode& node, const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                       XMLSize_t count);
    void addAttribute(XmlNode& node, std::u16string_view name, const XMLCh* value);
    void flushText();

    std::u16string_view nameOf(const xercesc::XMLElementDecl& declaration);
    void noteUndeclared(const xercesc::XMLElementDecl& declaration);
    std::u16string_view share(std::u16string_view name);
    std::u16string_view shareValue(std::u16string_view value);
    std::u16string_view store(std::u16string_view text);

    XmlDocument& m_document;
    XmlBounds m_bounds;
    ParserMemory& m_memory;
    XmlNode* m_current;
    XmlNode* m_documentType = nullptr;
    bool m_inInternalSubset = false;
    bool m_boundPassed = false;
    std::u16string m_text; // the text of the next text node, as far as it has come
    std::size_t m_units = 0;
    std::size_t m_nodes = 0;
    std::size_t m_entityNodes = 0;
    std::uint64_t m_attributeComparisons = 0;
    std::uint32_t m_depth = 0;
    std::uint32_t m_reports = 0;
    std::uint32_t m_declarations = 0;
    std::uint32_t m_openEntities = 0;
    std::size_t m_expandedUnits = 0;
    // All names apart from those of declared elements.
    std::unordered_set<std::u16string_view> m_names;
    NameChains m_undeclared;
    XMLSize_t m_lastUndeclared = 0;
    // The names that came last, by the addresses of their declarations.
    std::array<KnownName, 64> m_knownNames;
    std::array<std::u16string_view, 16> m_sharedNames;
    std::array<std::u16string_view, 32> m_knownValues;
};

} // namespace zent
