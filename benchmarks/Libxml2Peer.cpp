#include "Libxml2Peer.h"

#include <stdexcept>

#include <libxml/xmlerror.h>

namespace zent::bench {

namespace {

// The document type is a local file, and the tree isn't changed once it is read.
constexpr int usualOptions = XML_PARSE_NONET | XML_PARSE_COMPACT;

void countError(void* count, xmlErrorPtr error) {
    if (error->level != XML_ERR_WARNING) {
        ++*static_cast<int*>(count);
    }
}

// Without this it would print each error; the result of the validation is enough.
void ignoreMessage(void* /*context*/, const char* /*format*/, ...) {}

} // namespace

Libxml2Peer::Libxml2Peer(const std::string& dtdPath)
    : m_base(dtdPath), m_parser(xmlNewParserCtxt()), m_validator(xmlNewValidCtxt()),
      m_dtd(xmlParseDTD(nullptr, reinterpret_cast<const xmlChar*>(dtdPath.c_str()))) {
    m_validator->error = ignoreMessage;
    if (m_dtd == nullptr) {
        throw std::runtime_error("libxml2 can't read the document type");
    }
    constexpr std::string_view invalid = R"(<!DOCTYPE ordo SYSTEM "ordo-v02025.dtd"><ordo a=""/>)";
    for (const auto reader : {&Libxml2Peer::parse, &Libxml2Peer::parseWithCompiledDtd}) {
        try {
            (this->*reader)(invalid);
        } catch (const std::runtime_error&) {
            continue;
        }
        throw std::logic_error("libxml2 doesn't validate");
    }
}

Libxml2Peer::Document Libxml2Peer::parse(std::string_view xml) {
    int errors = 0;
    xmlSetStructuredErrorFunc(&errors, countError);
    Document document(xmlReadMemory(xml.data(), static_cast<int>(xml.size()), m_base.c_str(),
                                    nullptr,
                                    usualOptions | XML_PARSE_DTDLOAD | XML_PARSE_DTDVALID));
    xmlSetStructuredErrorFunc(nullptr, nullptr);
    if (document == nullptr || errors != 0) {
        throw std::runtime_error("libxml2 finds the ticket not valid");
    }
    return document;
}

Libxml2Peer::Document Libxml2Peer::parseWithCompiledDtd(std::string_view xml) {
    Document document(xmlCtxtReadMemory(m_parser.get(), xml.data(), static_cast<int>(xml.size()),
                                        m_base.c_str(), nullptr, usualOptions));
    if (document == nullptr ||
        xmlValidateDtd(m_validator.get(), document.get(), m_dtd.get()) != 1) {
        throw std::runtime_error("libxml2 finds the ticket not valid");
    }
    return document;
}

std::size_t Libxml2Peer::write(const Document& document) {
    xmlChar* bytes = nullptr;
    int size = 0;
    xmlDocDumpMemoryEnc(document.get(), &bytes, &size, "UTF-8");
    const std::unique_ptr<xmlChar, Release<[](void* memory) { xmlFree(memory); }>> owned(bytes);
    if (size <= 0) {
        throw std::runtime_error("libxml2 can't write the ticket");
    }
    return static_cast<std::size_t>(size);
}

} // namespace zent::bench
