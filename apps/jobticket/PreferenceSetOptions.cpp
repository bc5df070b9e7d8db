#include "PreferenceSetOptions.h"

#include <CLI/CLI.hpp>

namespace jobticket {

void addPreferenceSetOptions(CLI::App& command, PreferenceSetOptions& options) {
    addModelOptions(command, options.printer);
    command.add_option("--set", options.name, "The set of preferences of that name");
    command.add_flag("--generic", options.isShared,
                     "The set that all printers share, which is the default; with --model it is "
                     "that of the printer's driver");
}

Session openSession(const PreferenceSetOptions& options) {
    const bool hasPrinter = !options.printer.model.empty() || !options.printer.language.empty();
    const PrinterChoice printer = hasPrinter ? choosePrinter(options.printer) : PrinterChoice();
    return Session(printer, {options.name, options.isShared || !hasPrinter});
}

} // namespace jobticket
