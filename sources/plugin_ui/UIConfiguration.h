#pragma once

#include <cstdint>

#include "ocore/User/UserPreferences.h"

namespace zent {

class Capabilities;
class StockInformation;
class StockList;

/// What all components of a dialog share. The caller of the dialog makes it, and keeps it as long
/// as the dialog; what it points to belongs to others.
struct UIConfiguration {
    static constexpr std::uint32_t jobTicketDialog = 2;

    std::uint32_t kind = jobTicketDialog;
    const Capabilities* capabilities = nullptr;
    const StockList* stockList = nullptr;
    UserPreferences preferences;
    StockInformation* stockInformation = nullptr;
    /// Whether the dialogs that are opened now show the ticket without letting it be changed.
    bool readOnly = false;
};

} // namespace zent
