#pragma once

#include "Json.h"
#include "Offers.h"

namespace jobticket {

/// What a printer offers of a feature; what doesn't apply is left out.
Json toJson(const Offer& offer);
/// Two numbers in an array.
Json toJson(const Range& range);
/// The printer itself: number, name, language and form of instructions.
Json describePrinter(const Offers& offers);

} // namespace jobticket
