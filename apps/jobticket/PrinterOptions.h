#pragma once

#include <string>

#include "Options.h"
#include "Session.h"

namespace jobticket {

/// What the options are called, for messages.
struct PrinterOptionNames {
    std::string model = "--model";
    std::string language = "--pdl";
    bool hasDefault = true;
};

/// The printer that is meant, or the user's default one. Raises ProgramError, telling what there
/// is: usage if there is none of both, badValue for one that doesn't exist, or not with that
/// language.
PrinterChoice choosePrinter(const PrinterOptions& options, const PrinterOptionNames& names = {});

} // namespace jobticket
