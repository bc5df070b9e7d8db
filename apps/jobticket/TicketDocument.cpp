#include "TicketDocument.h"

#include <vector>

#include "Errors.h"
#include "Session.h"
#include "Text.h"
#include "TicketFile.h"
#include "ocore/AnlXlate/AnlTranslatorForXml.h"
#include "ocore/Faults/TarvoException.h"
#include "ocore/Resources/ByteBuffer.h"

namespace jobticket {

namespace {

constexpr std::size_t mostMessages = 5;

/// The parser's own lines of an exception's message, which also holds the whole document.
std::vector<std::string> parserMessages(const zent::CXString& message) {
    std::vector<std::string> lines;
    std::u16string_view rest = message;
    while (!rest.empty()) {
        const std::size_t end = rest.find(u"\r\n");
        const std::u16string_view line = rest.substr(0, end);
        if (line.starts_with(u"XML is:")) {
            break;
        }
        // The first one stands behind what raised it.
        if (const std::size_t start =
                std::min(line.find(u"Error at line"), line.find(u"Fatal error at line"));
            start != std::u16string_view::npos) {
            lines.push_back(toLine(line.substr(start)));
        }
        rest.remove_prefix(end == std::u16string_view::npos ? rest.size() : end + 2);
    }
    return lines;
}

} // namespace

void failToRead(const zent::TarvoException& exception, const std::string& subject,
                const std::string& fault) {
    const std::vector<std::string> messages = parserMessages(exception.getMessage());
    if (messages.empty()) {
        throw LibraryError(exception.getResultCode(), "reading", subject);
    }
    std::string text = subject + " " + fault;
    for (std::size_t index = 0; index < messages.size() && index < mostMessages; ++index) {
        text += "\n  " + messages[index];
    }
    if (messages.size() > mostMessages) {
        text += "\n  and " + std::to_string(messages.size() - mostMessages) + " more";
    }
    throw ProgramError(ExitStatus::invalidTicket, text);
}

zent::AttrNodeList readDocument(std::string_view document, const std::string& name) {
    zent::AttrNodeList list;
    try {
        zent::OrdoTranslator().anlFromBuffer(zent::ByteBuffer(document.data(), document.size()),
                                             &list);
    } catch (const zent::TarvoException& exception) {
        failToRead(exception, nameForMessages(name), "is no valid ticket");
    }
    return list;
}

zent::AttrNodeList readDocumentFile(const std::string& name) {
    return readDocument(readFile(name), name);
}

std::string repairTicket(std::string_view document, const std::string& name,
                         const PrinterChoice& printer) {
    Session session(printer);
    session.importAndRepairTicket(document, nameForMessages(name));
    return session.exportTicket();
}

bool importDocumentFile(Session& session, const std::string& name) {
    const std::string document = readFile(name);
    try {
        return session.importTicket(document, nameForMessages(name));
    } catch (const LibraryError&) {
        readDocument(document, name); // fails as well, and says where in the document
        throw;
    }
}

} // namespace jobticket
