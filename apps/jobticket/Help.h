#pragma once

#include <string>

#include "Command.h"

namespace jobticket {

/// What stands for the value of an option: "FILE", "PRINTER", ...
std::string getName(Operand operand);
/// "TICKET", "[PATTERN]", "[FEATURE=VALUE...]": an argument in a line that shows how to use a
/// command.
std::string describePlace(const Option& argument);
/// " (not with --json)", " (only with --fix)", or nothing.
std::string describeRules(const Option& option);

/// What --help tells of the program, in lines of at most 80 characters.
std::string describeProgram();
/// The same of a command, or of a group.
std::string describe(const Command& command);

} // namespace jobticket
