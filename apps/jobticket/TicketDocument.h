#pragma once

#include <string>
#include <string_view>

#include "ocore/Attributes/AttrNodeList.h"

namespace jobticket {

class Session;

/// Reads a ticket document for looking at it: as it stands, without what an import normalises.
/// Raises ProgramError (invalidTicket) with the parser's messages, which name lines and columns.
zent::AttrNodeList readDocument(std::string_view document, const std::string& name);

/// The same from a file or standard input.
zent::AttrNodeList readDocumentFile(const std::string& name);

/// Imports a ticket document from a file or standard input into a session. What is no valid ticket
/// fails with the same messages.
void importDocumentFile(Session& session, const std::string& name);

} // namespace jobticket
