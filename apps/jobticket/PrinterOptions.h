#pragma once

#include <string>

#include "Options.h"
#include "Session.h"

namespace jobticket {

/// What the options are called, for messages.
struct PrinterOptionNames {
    std::string model = "--model";
    std::string language = "--pdl";
};

/// The printer that is meant. Raises ProgramError (usage), telling what there is, if no model is
/// given, or none of that name exists, or not with that language.
PrinterChoice choosePrinter(const PrinterOptions& options, const PrinterOptionNames& names = {});

} // namespace jobticket
