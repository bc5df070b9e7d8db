#include "plugin_ui/UIConfiguration.h"

#include "ocore/Printer/Printer.h"

namespace zent {

UIConfiguration UIConfiguration::forPrinter(Printer& printer, const StockList& printerStocks,
                                            StockInformation& ticketStocks) {
    return {.capabilities = &printer.getCapabilities(),
            .printerDefaults = &printer.getDefaults().getSettings(),
            .printerName = printer.getDisplayName(),
            .stockList = &printerStocks,
            .preferences = *printer.getUserPreferences(),
            .stockInformation = &ticketStocks};
}

} // namespace zent
