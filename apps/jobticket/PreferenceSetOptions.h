#pragma once

#include <string>

#include "PrinterOptions.h"

namespace jobticket {

/// What a command line says of the set of preferences to use.
struct PreferenceSetOptions {
    PrinterOptions printer;
    std::string name;
    bool isShared = false;
};

/// Adds --model, --pdl, --set and --generic to a command. The options must live as long as the
/// command.
void addPreferenceSetOptions(CLI::App& command, PreferenceSetOptions& options);

/// A session with the set that is meant; without any option, the one that all printers share.
/// Raises as choosePrinter() does.
Session openSession(const PreferenceSetOptions& options);

} // namespace jobticket
