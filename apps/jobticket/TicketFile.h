#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace jobticket {

/// What stands for standard input or output in place of a file's name.
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

/// Where a result goes that is made of one of several tickets: into the folder that is named, under
/// the ticket's name with another ending if one is given. Raises ProgramError (usage) if no folder
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

} // namespace jobticket
