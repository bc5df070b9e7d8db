#include "XercesFloor.h"

#include <algorithm>
#include <stdexcept>

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/TransService.hpp>

namespace zent::bench {

namespace {

using xercesc::XMLFormatter;

std::u16string widen(std::string_view text) {
    const xercesc::TranscodeFromStr wide(reinterpret_cast<const XMLByte*>(text.data()), text.size(),
                                         "UTF-8");
    return {wide.str(), wide.length()};
}

/// Undoes the escapes that a formatter makes in text.
std::string unescape(std::string_view text) {
    struct Escape {
        std::string_view written;
        char meant;
    };
    constexpr Escape escapes[] = {{"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&#xD;", '\r'}};
    std::string plain;
    while (!text.empty()) {
        std::size_t taken = 1;
        char meant = text.front();
        for (const Escape& escape : escapes) {
            if (text.starts_with(escape.written)) {
                taken = escape.written.size();
                meant = escape.meant;
            }
        }
        plain += meant;
        text.remove_prefix(taken);
    }
    return plain;
}

class StringTarget final : public xercesc::XMLFormatTarget {
public:
    explicit StringTarget(std::string& target) : m_target(target) {}
    void writeChars(const XMLByte* bytes, XMLSize_t count, XMLFormatter*) override {
        m_target.append(reinterpret_cast<const char*>(bytes), count);
    }

private:
    std::string& m_target;
};

} // namespace

class XercesParse::Handler final : public xercesc::HandlerBase {
public:
    void error(const xercesc::SAXParseException& exception) override { raise(exception); }
    void fatalError(const xercesc::SAXParseException& exception) override { raise(exception); }

private:
    [[noreturn]] static void raise(const xercesc::SAXParseException& exception) {
        const xercesc::TranscodeToStr message(exception.getMessage(), "UTF-8");
        throw std::runtime_error(reinterpret_cast<const char*>(message.str()));
    }
};

XercesParse::XercesParse(const std::string& dtdPath) {
    xercesc::XMLPlatformUtils::Initialize();
    m_base = widen(dtdPath);
    m_handler = std::make_unique<Handler>();
    m_treeParser = std::make_unique<xercesc::XercesDOMParser>();
    m_treeParser->setCreateEntityReferenceNodes(false);
    prepare(*m_treeParser);
    m_eventParser = std::make_unique<xercesc::SAXParser>();
    m_eventParser->setDocumentHandler(m_handler.get());
    prepare(*m_eventParser);
}

XercesParse::~XercesParse() {
    m_treeParser.reset();
    m_eventParser.reset();
    xercesc::XMLPlatformUtils::Terminate();
}

template <typename Parser>
void XercesParse::prepare(Parser& parser) {
    parser.setErrorHandler(m_handler.get());
    parser.setDoNamespaces(false);
    if (m_base.empty()) {
        parser.setValidationScheme(Parser::Val_Never);
    } else {
        prepareToValidate(parser);
    }
}

template <typename Parser>
void XercesParse::prepareToValidate(Parser& parser) {
    parser.setValidationScheme(Parser::Val_Always);
    parser.loadGrammar(m_base.c_str(), xercesc::Grammar::DTDGrammarType, true);
    parser.useCachedGrammarInParse(true);

    constexpr std::string_view invalid = R"(<!DOCTYPE ordo SYSTEM "ordo-v02025.dtd"><ordo a=""/>)";
    try {
        parse(parser, invalid);
    } catch (const std::runtime_error&) {
        return;
    }
    throw std::logic_error("Xerces-C doesn't validate");
}

template <typename Parser>
void XercesParse::parse(Parser& parser, std::string_view xml) {
    const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(xml.data()),
                                            xml.size(), m_base.c_str());
    parser.parse(source);
}

void XercesParse::parseToTree(std::string_view xml) {
    parse(*m_treeParser, xml);
    m_treeParser->resetDocumentPool();
}

void XercesParse::parseToEvents(std::string_view xml) { parse(*m_eventParser, xml); }

XercesWrite::XercesWrite(std::string_view xml) : m_whole(widen(xml)) {
    constexpr std::string_view lineEnd = "\r\n";
    while (!xml.empty()) {
        std::size_t length = 0;
        if (xml.starts_with("<")) {
            length = xml.find('>') + 1;
            addTag(xml.substr(0, length));
        } else if (xml.starts_with(lineEnd)) {
            length = std::min(xml.find_first_not_of('\t', lineEnd.size()), xml.size());
            addMarkup(lineEnd);
            addMarkup(xml.substr(lineEnd.size(), length - lineEnd.size()));
        } else {
            length = std::min(xml.find('<'), xml.size());
            addText(xml.substr(0, length));
        }
        xml.remove_prefix(length);
    }
}

void XercesWrite::addMarkup(std::string_view text) {
    if (!text.empty()) {
        m_pieces.push_back({widen(text), XMLFormatter::NoEscapes});
    }
}

void XercesWrite::addText(std::string_view text) {
    m_pieces.push_back({widen(unescape(text)), XMLFormatter::CharEscapes});
}

void XercesWrite::addTag(std::string_view tag) {
    if (tag.starts_with("<?") || tag.starts_with("<!")) {
        addMarkup(tag);
        return;
    }
    const std::size_t opening = tag.starts_with("</") ? 2 : 1;
    const std::size_t closing = tag.ends_with("/>") ? 2 : 1;
    addMarkup(tag.substr(0, opening));
    std::string_view rest = tag.substr(opening, tag.size() - opening - closing);
    addMarkup(rest.substr(0, rest.find(' ')));
    for (auto blank = rest.find(' '); blank != std::string_view::npos; blank = rest.find(' ')) {
        rest.remove_prefix(blank + 1);
        const auto quote = rest.find('"');
        const auto end = rest.find('"', quote + 1);
        addMarkup(" ");
        addMarkup(rest.substr(0, quote - 1));
        addMarkup("=\"");
        m_pieces.push_back(
            {widen(rest.substr(quote + 1, end - quote - 1)), XMLFormatter::AttrEscapes});
        addMarkup("\"");
        rest.remove_prefix(end + 1);
    }
    addMarkup(tag.substr(tag.size() - closing));
}

std::string_view XercesWrite::writePieces() {
    m_written.clear();
    StringTarget target(m_written);
    XMLFormatter formatter("UTF-8", "1.0", &target, XMLFormatter::NoEscapes,
                           XMLFormatter::UnRep_CharRef);
    for (const Piece& piece : m_pieces) {
        formatter.formatBuf(piece.text.data(), piece.text.size(), piece.escapes);
    }
    return m_written;
}

std::string_view XercesWrite::writeWhole() {
    m_written.clear();
    StringTarget target(m_written);
    XMLFormatter formatter("UTF-8", "1.0", &target, XMLFormatter::NoEscapes,
                           XMLFormatter::UnRep_Fail);
    formatter.formatBuf(m_whole.data(), m_whole.size());
    return m_written;
}

} // namespace zent::bench
