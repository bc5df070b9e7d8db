#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <xercesc/framework/XMLFormatter.hpp>
#include <xercesc/parsers/SAXParser.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>

namespace zent::bench {

/// The least that reading a document costs: a parser that is used again and again, and if it
/// validates, does so against a document type that was compiled beforehand.
class XercesParse {
public:
    /// Takes the path of the document type; without one, it doesn't validate.
    explicit XercesParse(const std::string& dtdPath = {});
    XercesParse(const XercesParse&) = delete;
    XercesParse& operator=(const XercesParse&) = delete;
    ~XercesParse();

    /// Both throw std::runtime_error if there is any error. The tree is dropped at once.
    void parseToTree(std::string_view xml);
    /// Parses to events without a handler: no program on this parser can read faster.
    void parseToEvents(std::string_view xml);

private:
    class Handler;
    template <typename Parser>
    void prepare(Parser& parser);
    template <typename Parser>
    void prepareToValidate(Parser& parser);
    template <typename Parser>
    void parse(Parser& parser, std::string_view xml);

    std::u16string m_base;
    std::unique_ptr<Handler> m_handler;
    std::unique_ptr<xercesc::XercesDOMParser> m_treeParser;
    std::unique_ptr<xercesc::SAXParser> m_eventParser;
};

/// The least that writing a ticket costs: a formatter that is handed the ticket's pieces from a
/// flat list, each as a serialiser would hand it.
class XercesWrite {
public:
    /// Takes a ticket apart.
    explicit XercesWrite(std::string_view xml);

    /// Both write the ticket. The bytes are valid until the next call.
    std::string_view writePieces();
    /// Writes all as one piece, with nothing left to escape: this is the formatter's conversion
    /// alone.
    std::string_view writeWhole();

private:
    struct Piece {
        std::u16string text;
        xercesc::XMLFormatter::EscapeFlags escapes;
    };
    void addMarkup(std::string_view text);
    void addTag(std::string_view tag);
    void addText(std::string_view text);

    std::vector<Piece> m_pieces;
    std::u16string m_whole;
    std::string m_written;
};

} // namespace zent::bench
