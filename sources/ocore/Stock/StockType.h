#pragma once

#include <cstdint>

#include "ocore/Text/CXString.h"

namespace zent {

/// Who owns a stock. The numbers never change.
enum class StockType : std::uint32_t {
    transient = 1, // exists only in a ticket
    user = 2,      // belongs to the user's library
    printer = 3,   // reported by the printer; the library can't change it
};

/// How a stock is known.
enum class StockSource : std::uint32_t {
    name = 1,        // by its name alone, "media"
    description = 2, // by a description, "media-col"
};

/// "Transient", "User" or "Printer"; "UNKNOWN!" for any other number.
CXString stockTypeToString(StockType type);

} // namespace zent
