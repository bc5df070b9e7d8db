#include "ocore/OrdoParse/DOMTreeErrorReporter.h"

#include <xercesc/sax/SAXParseException.hpp>

namespace zent {

void DOMTreeErrorReporter::warning(const xercesc::SAXParseException& report) {
    add("Warning at line %d, column %d: \"%s\"\r\n", report);
    m_warningSeen = true;
}

void DOMTreeErrorReporter::error(const xercesc::SAXParseException& report) {
    add("Error at line %d, column %d: \"%s\"\r\n", report);
    m_errorSeen = true;
}

void DOMTreeErrorReporter::fatalError(const xercesc::SAXParseException& report) {
    add("Fatal error at line %d, column %d: \"%s\"\r\n", report);
    m_fatalSeen = true;
}

void DOMTreeErrorReporter::resetErrors() {
    m_warningSeen = m_errorSeen = m_fatalSeen = false;
    m_messages.clear();
}

void DOMTreeErrorReporter::add(const char* format, const xercesc::SAXParseException& report) {
    m_messages +=
        formatText(format, report.getLineNumber(), report.getColumnNumber(), report.getMessage());
    m_messages += formatText("DTD name is %s\r\n", report.getSystemId());
}

} // namespace zent
