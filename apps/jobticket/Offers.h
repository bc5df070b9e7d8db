#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Feature.h"
#include "Listing.h"
#include "Session.h"
#include "Value.h"

namespace jobticket {

/// What a printer offers of one feature. What doesn't apply is empty.
struct Offer {
    Feature feature;
    bool mayBeUnset = false;          // the choice may be left to the printer
    std::vector<NamedValue> values;   // with known names
    bool takesOwnValues = false;      // and texts of the user's own
    std::vector<Range> ranges;        // of numbers
    std::optional<std::int32_t> step; // of these
    std::optional<Range> length;      // of a text, in characters
    std::string characters;           // of a text, where not all are allowed
    std::vector<Feature> members;     // of a collection
};

/// What a printer offers.
struct Offers {
    PrinterChoice choice; // the form never ZENT_INSTRUCTIONS_BY_MODEL
    std::string printer;
    std::string language;
    bool hasSeparateCovers = false; // front and back cover may differ
    bool insertsMultipleMedia = false;
    bool savesTiffWhenPrinting = false;
    std::vector<Offer> features; // by number; the others the printer doesn't have
};

Offers getOffers(const PrinterChoice& choice);

/// Whether any printer lets a page-level feature hold a feature.
bool mayHold(const Feature& holder, const Feature& feature);

/// What a printer offers of a feature; what doesn't apply is left out.
Json toJson(const Offer& offer);
/// Two numbers in an array.
Json toJson(const Range& range);
/// The printer itself: number, name, language and form of instructions.
Json describePrinter(const Offers& offers);

} // namespace jobticket
