#include "PreferenceSetOptions.h"

#include "PrinterOptions.h"

namespace jobticket {

Session openSession(const Options& options) {
    const bool hasPrinter = !options.printer.model.empty() || !options.printer.language.empty();
    return openSession(options, hasPrinter ? choosePrinter(options.printer) : PrinterChoice());
}

Session openSession(const Options& options, const PrinterChoice& printer) {
    return Session(printer, {options.preferenceSet, !options.usesPrinterPreferences});
}

} // namespace jobticket
