#pragma once

#include <cstdint>

#include "ocore/User/UserPreferences.h"

namespace zent {

class Capabilities;
class FeatureSettings;
class Printer;
class StockInformation;
class StockList;

/// What all components of a dialog share, so that each takes it from here and not from its maker.
/// Who runs the dialog makes it, and keeps it as long as the dialog; what it points to belongs to
/// others.
struct UIConfiguration {
    static constexpr std::uint32_t jobTicketDialog = 2;

    std::uint32_t kind = jobTicketDialog;
    // The printer: what it can do, what its tickets begin with, and what users call it.
    const Capabilities* capabilities = nullptr;
    const FeatureSettings* printerDefaults = nullptr;
    CXString printerName{};
    const StockList* stockList = nullptr;
    UserPreferences preferences;
    StockInformation* stockInformation = nullptr;
    /// Whether the dialogs that are opened now show the ticket without letting it be changed.
    bool readOnly = false;

    /// For a printer, the stocks that it knows, and those of the ticket. All must outlive the
    /// configuration.
    static UIConfiguration forPrinter(Printer& printer, const StockList& printerStocks,
                                      StockInformation& ticketStocks);
};

} // namespace zent
