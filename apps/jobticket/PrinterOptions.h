#pragma once

#include <string>

#include "Session.h"

namespace CLI {
class App;
}

namespace jobticket {

/// What a command line says of a printer. Empty texts weren't given.
struct PrinterOptions {
    std::string model;
    std::string language;
    std::string form;
};

/// Adds --model and --pdl to a command. The options must live as long as the command.
void addModelOptions(CLI::App& command, PrinterOptions& options);
/// Adds --form as well.
void addPrinterOptions(CLI::App& command, PrinterOptions& options);

/// The printer that is meant. Raises ProgramError (usage), telling what there is, if no model is
/// given, or none of that name exists, or not with that language.
PrinterChoice choosePrinter(const PrinterOptions& options);

} // namespace jobticket
