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

/// What the options are called, for messages.
struct PrinterOptionNames {
    std::string model = "--model";
    std::string language = "--pdl";
};

/// Adds --model and --pdl to a command. The options must live as long as the command.
void addModelOptions(CLI::App& command, PrinterOptions& options);
/// Adds --form.
void addFormOption(CLI::App& command, PrinterOptions& options);
/// Adds all three.
void addPrinterOptions(CLI::App& command, PrinterOptions& options);

/// The printer that is meant. Raises ProgramError (usage), telling what there is, if no model is
/// given, or none of that name exists, or not with that language.
PrinterChoice choosePrinter(const PrinterOptions& options, const PrinterOptionNames& names = {});

} // namespace jobticket
