#pragma once

#include <string>
#include <vector>

#include "Errors.h"

namespace jobticket {

/// Reads the arguments and does what they ask for. Raises ProgramError (usage) for those that make
/// no sense.
ExitStatus runCommandLine(const std::vector<std::string>& arguments);

} // namespace jobticket
