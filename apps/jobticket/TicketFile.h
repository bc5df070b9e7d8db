#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zent {
class AttrNodeList;
class TarvoException;
} // namespace zent

namespace jobticket {

class Session;
struct PrinterChoice;

/// The name that stands for standard input or output in place of a file's name.
constexpr std::string_view standardStream = "-";

/// The bytes of a file or of standard input. Raises ProgramError (unreadable), also for more bytes
/// than the library takes.
std::string readFile(const std::string& name);

/// Writes a file or to standard output. A file appears whole or not at all: the bytes go to a
/// temporary file beside it, which then takes its place. Raises ProgramError (unwritable).
void writeFile(const std::string& name, std::string_view bytes);

/// Writes a result to the file of that name, or to standard output where none is given.
void writeResult(const std::optional<std::string>& name, std::string_view bytes);
void writeStandardOutput(std::string_view bytes);

/// Chooses the files for the results of several tickets: in the folder that is named, each under
/// its ticket's name, with another ending if one is given. Raises ProgramError (usage) if no folder
/// is, or if two tickets would go to one file.
std::vector<std::string> chooseResultFiles(const std::vector<std::string>& tickets,
                                           const std::optional<std::string>& output,
                                           std::string_view ending = {});

/// Whether a result goes to standard output.
bool isStandardStream(const std::optional<std::string>& name);

/// Writes a listing to standard output, or to standard error if a result is written to the former.
void writeListing(std::string_view text, bool isOutputTaken);

/// A file's name for messages, printable.
std::string nameForMessages(const std::string& name);

/// Raises ProgramError (invalidTicket) for a document that can't be read, with the parser's
/// messages, if there are any: "SUBJECT FAULT", and lines and columns.
[[noreturn]] void failToRead(const zent::TarvoException& exception, const std::string& subject,
                             const std::string& fault);

/// Reads a ticket document for looking at it: as it stands, without what an import normalises.
/// Raises ProgramError (invalidTicket) with the parser's messages, which name lines and columns.
zent::AttrNodeList readDocument(std::string_view document, const std::string& name);

/// The same from a file or standard input.
zent::AttrNodeList readDocumentFile(const std::string& name);

/// Repairs what a printer can't do of a ticket document. `name` is for messages.
std::string repairTicket(std::string_view document, const std::string& name,
                         const PrinterChoice& printer);

/// Imports a ticket document from a file or standard input into a session. True if there is
/// anything in it that the printer can't do. A document that is no valid ticket fails with the
/// messages of readDocument().
bool importDocumentFile(Session& session, const std::string& name);

} // namespace jobticket
