#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

#include <xercesc/framework/XMLFormatter.hpp>

#include "ocore/OrdoParse/DOMTreeErrorReporter.h"
#include "ocore/OrdoParse/XmlDocument.h"
#include "ocore/OrdoParse/XmlLimits.h"
#include "ocore/Text/CXString.h"

namespace zent {

class CompiledDtd;
class Stream;

/// Bytes to a document and back, for one document at a time. All failures are raised as
/// OrdoParseException, but for lack of memory, which is std::bad_alloc. A document beyond a bound
/// is an XmlBoundException.
class TarvoXmlParser final : public xercesc::XMLFormatTarget {
public:
    /// The stream name stands for the document in messages. With `validate` it is also the path of
    /// the document type definition: a document names that file as if it stood beside it.
    TarvoXmlParser(const CXString& streamName, bool validate)
        : m_streamName(streamName), m_validate(validate) {}

    /// Where documents come from; unless this is set, they come as such, and not in a blob.
    void setOrigin(XmlOrigin origin) { m_origin = origin; }

    // These take the place of the operators of the parser library, which fail in a way of their
    // own.
    static void* operator new(std::size_t size) { return ::operator new(size); }
    static void operator delete(void* memory) { ::operator delete(memory); }

    /// Parses a document. Raises code 1 if the parser library fails, code 2 if it finds an error,
    /// fatal or not.
    void parse(std::span<const std::byte> bytes);
    /// Parses a literal of the program. What it gave is taken from memory from then on, as long as
    /// the document type definition, if there is one, is as it was.
    void parseSkeleton(std::string_view skeleton);
    /// The document of the last parse; empty before.
    XmlDocument& getDocument();

    /// Writes the document, in the encoding that it declares or else in UTF-8. Code 3 if the parser
    /// library fails, code 4 if the output doesn't take the bytes or the document is one that
    /// couldn't be read again.
    void convertToXmlStream(Stream& output, bool formatted);
    /// Takes the bytes of the library's formatter.
    void writeChars(const XMLByte* bytes, XMLSize_t count,
                    xercesc::XMLFormatter* formatter) override;

private:
    std::shared_ptr<const CompiledDtd> findDtd() const;
    void parse(std::span<const std::byte> bytes, const std::shared_ptr<const CompiledDtd>& dtd);
    bool runParser(std::span<const std::byte> bytes, const std::shared_ptr<const CompiledDtd>& dtd);

    CXString m_streamName;
    bool m_validate;
    XmlOrigin m_origin = XmlOrigin::document;
    DOMTreeErrorReporter m_reporter;
    std::optional<XmlDocument> m_document;
    Stream* m_output = nullptr;
    std::size_t m_written = 0;
};

} // namespace zent
