#include "PreferenceSetOptions.h"

#include "PrinterOptions.h"

namespace jobticket {

Session openSession(const Options& options) {
    const bool hasPrinter = !options.printer.model.empty() || !options.printer.language.empty();
    const PrinterChoice printer = hasPrinter ? choosePrinter(options.printer) : PrinterChoice();
    return Session(printer, {options.preferenceSet, !options.usesPrinterPreferences});
}

} // namespace jobticket
