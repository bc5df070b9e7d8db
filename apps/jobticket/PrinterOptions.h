#pragma once

#include <string>

#include "Command.h"
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

/// A session with the set of preferences that is meant; without any option for it, whatever the
/// printer, that is the one that all printers share.
/// Raises as choosePrinter() does.
Session openSession(const Options& options);
/// The same for a command that goes by a printer in any case.
Session openSession(const Options& options, const PrinterChoice& printer);

} // namespace jobticket
