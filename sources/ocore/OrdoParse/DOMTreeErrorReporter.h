#pragma once

#include <string_view>

#include <xercesc/sax/ErrorHandler.hpp>

#include "ocore/Text/CXString.h"

namespace zent {

/// Collects what the parser finds wrong with a document, as text and as two flags. It lets the
/// parser go on, so that one message tells all faults.
class DOMTreeErrorReporter final : public xercesc::ErrorHandler {
public:
    void warning(const xercesc::SAXParseException& report) override;
    void error(const xercesc::SAXParseException& report) override;
    void fatalError(const xercesc::SAXParseException& report) override;
    /// Forgets all reports.
    void resetErrors() override;

    /// Adds a fault that the parser doesn't report itself.
    void addFatalError(const CXString& message) {
        m_messages += message;
        m_fatalSeen = true;
    }

    bool isErrorSeen() const { return m_errorSeen; }
    bool isFatalSeen() const { return m_fatalSeen; }
    /// Two lines for each report, in the order of the document.
    const CXString& getMessages() const { return m_messages; }

private:
    void add(std::u16string_view kind, const xercesc::SAXParseException& report);

    bool m_errorSeen = false;
    bool m_fatalSeen = false;
    CXString m_messages;
};

} // namespace zent
