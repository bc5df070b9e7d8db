#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/valid.h>

namespace zent::bench {

/// The same work by libxml2. All parses validate, and throw std::runtime_error for a ticket that
/// isn't valid.
class Libxml2Peer {
public:
    template <auto release>
    struct Release {
        template <typename T>
        void operator()(T* object) const {
            release(object);
        }
    };
    using Document = std::unique_ptr<xmlDoc, Release<xmlFreeDoc>>;

    /// Takes the path of the document type.
    explicit Libxml2Peer(const std::string& dtdPath);

    /// xmlReadMemory, which reads the document type anew each time: this is what most programs do.
    Document parse(std::string_view xml);
    /// The fastest way that the library has: one parser context for all parses, and validation by a
    /// document type that was compiled beforehand.
    Document parseWithCompiledDtd(std::string_view xml);
    /// xmlDocDumpMemoryEnc. Gives the number of bytes written.
    static std::size_t write(const Document& document);

private:
    std::string m_base;
    std::unique_ptr<xmlParserCtxt, Release<xmlFreeParserCtxt>> m_parser;
    std::unique_ptr<xmlValidCtxt, Release<xmlFreeValidCtxt>> m_validator;
    std::unique_ptr<xmlDtd, Release<xmlFreeDtd>> m_dtd;
};

} // namespace zent::bench
