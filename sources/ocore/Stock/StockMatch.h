#pragma once

#include <cstdint>

#include "ocore/Text/CXString.h"

namespace zent {

/// The grade in which two stocks are the same.
enum class StockMatch : std::int32_t {
    none = 0,
    basic = 1,    // same description; at least one of the two has no key
    nextBest = 2, // same description and key, or equal keys of stocks by name
    best = 3,     // same logical id
};

/// "no match", also for any other number, "basic", "next best" or "best".
CXString matchToString(StockMatch match);

/// The first thing in which two stocks differ. A graver difference has a higher number.
enum class StockDifference : std::uint32_t {
    none = 0,
    logicalID = 1,
    type = 2,
    key = 3,
    description = 4,
    source = 5,
};

} // namespace zent
