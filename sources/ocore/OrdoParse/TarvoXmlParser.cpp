// The grammar comes compiled, the memory is counted, and the tree is our own. Each of these takes
// the place of something that the parser library would do more slowly, or without bounds.

#include "ocore/OrdoParse/TarvoXmlParser.h"

#include <algorithm>
#include <new>
#include <optional>

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax/SAXException.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLException.hpp>

#include "ocore/OrdoParse/CompiledDtd.h"
#include "ocore/OrdoParse/KeptSkeletons.h"
#include "ocore/OrdoParse/OrdoParseException.h"
#include "ocore/OrdoParse/OwnDtd.h"
#include "ocore/OrdoParse/ParseGrammars.h"
#include "ocore/OrdoParse/ParserMemory.h"
#include "ocore/OrdoParse/XmlLimits.h"
#include "ocore/OrdoParse/XmlTreeBuilder.h"
#include "ocore/OrdoParse/XmlWriter.h"
#include "ocore/Resources/Stream.h"
#include "platform/KeepForever.h"

namespace zent {

namespace {

/// The beginning of a document, for messages.
std::string_view quoted(std::span<const std::byte> bytes) {
    return {static_cast<const char*>(static_cast<const void*>(bytes.data())),
            std::min(bytes.size(), xmlLimits::quotedBytes)};
}

[[noreturn]] void raiseParserFailure(const char16_t* message, std::span<const std::byte> bytes) {
    raiseOrdoParse(ordoParseCode::xmlExceptionInParse,
                   "TarvoXmlParser::parse(): An error occurred during parsing. Exception message "
                   "is %s.\r\nXML is:\r\n\r\n%S\r\n",
                   message, quoted(bytes));
}

template <typename Exception = OrdoParseException>
[[noreturn]] void raiseProblem(const CXString& messages, std::span<const std::byte> bytes) {
    raiseOrdoParse<Exception>(
        ordoParseCode::errorReportedInParse,
        "TarvoXmlParser::parse(): There was a problem with the ORDO stream %s.\r\nXML "
        "is:\r\n\r\n%S\r\n",
        messages, quoted(bytes));
}

CXString writingEncoding(const XmlDocument& document) {
    const XmlNode* const first = document.getNode().getFirstChild();
    if (first != nullptr && first->getKind() == XmlNodeKind::xmlDeclaration) {
        if (const XmlAttribute* const declared = first->findAttribute(u"encoding")) {
            return declared->value;
        }
    }
    return u"UTF-8";
}

} // namespace

void TarvoXmlParser::parse(std::span<const std::byte> bytes) { parse(bytes, findDtd()); }

void TarvoXmlParser::parseSkeleton(std::string_view skeleton) {
    static auto& withoutValidation = keepForever<KeptSkeletons>();
    const auto dtd = findDtd();
    // Where a definition can't be compiled, the parser has to read it anew with each document.
    KeptSkeletons* const kept = dtd          ? &dtd->getSkeletons()
                                : m_validate ? nullptr
                                             : &withoutValidation;
    if (const auto parsed = kept != nullptr ? kept->find(skeleton) : nullptr) {
        m_document.emplace().appendCopy(*parsed);
        return;
    }
    parse(std::as_bytes(std::span(skeleton)), dtd);
    if (kept != nullptr) {
        kept->keep(skeleton, *m_document);
    }
}

XmlDocument& TarvoXmlParser::getDocument() {
    return m_document ? *m_document : m_document.emplace();
}

std::shared_ptr<const CompiledDtd> TarvoXmlParser::findDtd() const {
    try {
        return m_validate ? CompiledDtd::find(m_streamName) : nullptr;
    } catch (const xercesc::OutOfMemoryException&) {
        throw std::bad_alloc();
    }
}

void TarvoXmlParser::parse(std::span<const std::byte> bytes,
                           const std::shared_ptr<const CompiledDtd>& dtd) {
    m_reporter.resetErrors();
    m_document.emplace();
    if (bytes.size() > xmlLimits::documentBytes) {
        raiseProblem<XmlBoundException>(
            formatText("Fatal error: the document has %I64u bytes; %lu are allowed\r\n",
                       bytes.size(), xmlLimits::documentBytes),
            bytes);
    }
    bool isBoundPassed = false;
    try {
        isBoundPassed = !runParser(bytes, dtd);
    } catch (const xercesc::XMLException& exception) {
        raiseParserFailure(exception.getMessage(), bytes);
    } catch (const xercesc::SAXException& exception) {
        raiseParserFailure(exception.getMessage(), bytes);
    } catch (const xercesc::DOMException& exception) {
        raiseParserFailure(exception.getMessage(), bytes);
    } catch (const xercesc::OutOfMemoryException&) {
        throw std::bad_alloc();
    }
    if (isBoundPassed) {
        raiseProblem<XmlBoundException>(m_reporter.getMessages(), bytes);
    }
    if (m_reporter.isErrorSeen() || m_reporter.isFatalSeen()) {
        raiseProblem(m_reporter.getMessages(), bytes);
    }
}

/// False if a bound was passed.
bool TarvoXmlParser::runParser(std::span<const std::byte> bytes,
                               const std::shared_ptr<const CompiledDtd>& dtd) {
    const XmlBounds bounds = boundsOf(m_origin, bytes.size());
    xercesc::SecurityManager limits;
    limits.setEntityExpansionLimit(xmlLimits::entityExpansions);
    OwnDtd resolver(m_validate ? m_streamName : CXString(), dtd);
    ParserMemory memory(bounds.parserBytes, xmlLimits::blocksBetweenEvents);
    std::optional<ParseGrammars> grammars;
    if (dtd) {
        grammars.emplace(dtd->getGrammars(), memory);
    }
    XmlTreeBuilder parser(*m_document, bounds, memory, grammars ? &*grammars : nullptr);
    parser.setErrorHandler(&m_reporter);
    parser.setXMLEntityResolver(&resolver);
    parser.setDisableDefaultEntityResolution(true);
    parser.setSecurityManager(&limits);
    parser.setValidationScheme(m_validate ? xercesc::XercesDOMParser::Val_Always
                                          : xercesc::XercesDOMParser::Val_Never);
    parser.setDoNamespaces(false);
    parser.setCreateEntityReferenceNodes(false);
    parser.useCachedGrammarInParse(dtd != nullptr);
    // Documents that declare something of their own would change it.
    parser.setIgnoreCachedDTD(true);

    xercesc::MemBufInputSource source(
        static_cast<const XMLByte*>(static_cast<const void*>(bytes.data())), bytes.size(),
        m_streamName.c_str(), false, &memory);
    source.setCopyBufToStream(false);
    try {
        parser.parse(source);
    } catch (const XmlTreeBuilder::Refusal&) {
        return !parser.isBoundPassed();
    } catch (const ParserMemory::Refusal&) {
        m_reporter.addFatalError(
            u"Fatal error: the document takes more memory than its size allows\r\n");
        return false;
    }
    return true;
}

void TarvoXmlParser::convertToXmlStream(Stream& output, bool formatted) {
    XmlDocument& document = getDocument();
    const CXString encoding = writingEncoding(document);
    m_output = &output;
    m_written = 0;
    try {
        ParserMemory memory;
        // The formatter would take a third of the stack that a call may use.
        const std::unique_ptr<xercesc::XMLFormatter> formatter(new (&memory) xercesc::XMLFormatter(
            encoding.c_str(), u"1.0", this, xercesc::XMLFormatter::NoEscapes,
            xercesc::XMLFormatter::UnRep_CharRef, &memory));
        XmlWriter writer(*formatter, formatted, m_origin);
        writer.write(document.getNode());
        writer.flush();
    } catch (const xercesc::XMLException& exception) {
        raiseOrdoParse(ordoParseCode::xmlExceptionInGeneration,
                       "TarvoXmlParser::convertToXmlStream(): XMLException during creation of "
                       "output stream. Message: %s\r\n",
                       exception.getMessage());
    } catch (const xercesc::OutOfMemoryException&) {
        throw std::bad_alloc();
    }
}

void TarvoXmlParser::writeChars(const XMLByte* bytes, XMLSize_t count,
                                xercesc::XMLFormatter* /*formatter*/) {
    m_written += count;
    if (m_written > xmlLimits::documentBytes) {
        raiseOrdoParse(ordoParseCode::outputFailed,
                       "TarvoXmlParser::writeChars(): The document would have more bytes than %lu, "
                       "and couldn't be read again!\r\n",
                       xmlLimits::documentBytes);
    }
    const auto* const text = static_cast<const char*>(static_cast<const void*>(bytes));
    if (!m_output->write({text, count})) {
        raiseOrdoParse(ordoParseCode::outputFailed,
                       "TarvoXmlParser::writeChars(): Failed the call to handleOutput() in special "
                       "callback object!\r\n");
    }
}

} // namespace zent
