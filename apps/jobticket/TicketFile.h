#pragma once

#include <optional>
#include <string>
#include <string_view>

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

/// Whether a result goes to standard output.
bool isStandardStream(const std::optional<std::string>& name);

/// Writes a listing to standard output, or to standard error if a result is written to the former.
void writeListing(std::string_view text, bool isOutputTaken);

/// A file's name for messages.
std::string nameForMessages(const std::string& name);

} // namespace jobticket
