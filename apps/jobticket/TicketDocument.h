#pragma once

#include <string>
#include <string_view>

#include "ocore/Attributes/AttrNodeList.h"

namespace zent {
class TarvoException;
}

namespace jobticket {

class Session;
struct PrinterChoice;

/// Raises ProgramError (invalidTicket) for a document that can't be read, with the parser's
/// messages, if there are any: "SUBJECT FAULT", and lines and columns.
[[noreturn]] void failToRead(const zent::TarvoException& exception, const std::string& subject,
                             const std::string& fault);

/// Reads a ticket document for looking at it: as it stands, without what an import normalises.
/// Raises ProgramError (invalidTicket) with the parser's messages, which name lines and columns.
zent::AttrNodeList readDocument(std::string_view document, const std::string& name);

/// The same from a file or standard input.
zent::AttrNodeList readDocumentFile(const std::string& name);

/// A ticket document with all repaired that a printer can't do of it. `name` is for messages.
std::string repairTicket(std::string_view document, const std::string& name,
                         const PrinterChoice& printer);

/// Imports a ticket document from a file or standard input into a session. True if there is
/// anything in it that the printer can't do. What is no valid ticket fails with the same messages.
bool importDocumentFile(Session& session, const std::string& name);

} // namespace jobticket
