#pragma once

#include <array>
#include <string>

#include <xercesc/parsers/XercesDOMParser.hpp>

#include "ocore/OrdoParse/XmlDocument.h"

namespace zent {

/// The library's DOM parser, with the content of a document put into an XmlDocument in place of the
/// library's own tree, which gets the document type alone. Entity references are expanded, and
/// ignorable white space stays as text.
///
/// It also keeps the bounds on documents that the library has no setting for. Beyond one of them it
/// reports a fatal error and throws a Refusal.
///
/// For one parse of one document.
class XmlTreeBuilder final : public xercesc::XercesDOMParser {
public:
    struct Refusal {};

    /// `grammars` may be null.
    XmlTreeBuilder(XmlDocument& document, xercesc::MemoryManager& memory,
                   xercesc::XMLGrammarPool* grammars);

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
    std::u16string_view nameOf(const xercesc::XMLElementDecl& declaration);
    std::u16string_view store(std::u16string_view text);
    void addAttribute(XmlNode& node, std::u16string_view name, const XMLCh* value);
    void flushText();

    XmlDocument& m_document;
    XmlNode* m_current;
    XmlNode* m_documentType = nullptr;
    bool m_inInternalSubset = false;
    std::u16string m_text; // of the text node to come
    std::size_t m_units = 0;
    std::uint32_t m_depth = 0;
    std::uint32_t m_elements = 0;
    std::uint32_t m_reports = 0;
    std::array<KnownName, 64> m_knownNames;
};

} // namespace zent
