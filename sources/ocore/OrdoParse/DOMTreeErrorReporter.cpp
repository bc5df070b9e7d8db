#include "ocore/OrdoParse/DOMTreeErrorReporter.h"

#include <string>

#include <xercesc/sax/SAXParseException.hpp>

namespace zent {

void DOMTreeErrorReporter::warning(const xercesc::SAXParseException& report) {
    add(u"Warning", report);
}

void DOMTreeErrorReporter::error(const xercesc::SAXParseException& report) {
    add(u"Error", report);
    m_errorSeen = true;
}

void DOMTreeErrorReporter::fatalError(const xercesc::SAXParseException& report) {
    add(u"Fatal error", report);
    m_fatalSeen = true;
}

void DOMTreeErrorReporter::resetErrors() {
    m_errorSeen = m_fatalSeen = false;
    m_messages.clear();
}

/// The text is put together without a format, since a hostile document has a thousand faults.
void DOMTreeErrorReporter::add(std::u16string_view kind, const xercesc::SAXParseException& report) {
    std::u16string text(kind);
    const auto addNumber = [&](XMLFileLoc number) {
        const std::string digits = std::to_string(number);
        text.append(digits.begin(), digits.end());
    };
    const auto addText = [&](const char16_t* part) { text += part != nullptr ? part : u"(null)"; };
    text += u" at line ";
    addNumber(report.getLineNumber());
    text += u", column ";
    addNumber(report.getColumnNumber());
    text += u": \"";
    addText(report.getMessage());
    text += u"\"\r\nDTD name is ";
    addText(report.getSystemId());
    text += u"\r\n";
    m_messages += text;
}

} // namespace zent
