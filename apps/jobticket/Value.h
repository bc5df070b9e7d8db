#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "Feature.h"
#include "ocore/FeatureSettings/StockSize.h"

namespace jobticket {

struct Range {
    std::int32_t lower;
    std::int32_t upper;
};

/// Units as in the ticket: 3 for dots per inch, 4 for dots per centimetre.
struct DotDensity {
    std::int32_t crossFeed;
    std::int32_t feed;
    std::int32_t units;
};

/// Hundredths of a millimetre.
struct Size {
    std::int32_t width;
    std::int32_t height;
};

/// One value, as the exported calls take it.
using Value = std::variant<std::u16string, std::int32_t, Range, DotDensity, Size>;

constexpr std::int32_t dotsPerInch = 3;
constexpr std::int32_t dotsPerCentimetre = 4;

/// Reads a value, or several with commas between them where the feature holds a set. Raises
/// ProgramError (badValue), telling what is allowed.
std::vector<Value> parseValues(const Feature& feature, std::string_view text);

/// The name by which a value may be typed in place of a number: "staple-top-left" for the finishing
/// 20. Empty if it has none.
std::string_view getAlias(const Feature& feature, std::string_view value);

/// The media sizes that have a name.
std::vector<zent::StockSize> getNamedSizes();

/// A value as the command line takes it, and its name for people.
struct NamedValue {
    std::string name;
    std::string displayName;
};

NamedValue toNamedValue(const zent::FeatureValue& value);
NamedValue toNamedValue(const zent::StockSize& size);
NamedValue toNamedValue(const DotDensity& density);
/// All that is known by name, whatever the printer.
std::vector<NamedValue> getNamedValues(const Feature& feature);

/// A known value that is meant, maybe, by one that the feature takes as the user's own; else empty.
std::string findMisspeltValue(const Feature& feature, const Value& value);

/// How the values of a feature are written, for help and messages.
std::string describeSyntax(const Feature& feature);

} // namespace jobticket
