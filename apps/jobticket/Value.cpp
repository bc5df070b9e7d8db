#include "Value.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>

#include "Errors.h"
#include "Text.h"
#include "ocore/FeatureSettings/FeatureEnum.h"

namespace jobticket {

namespace {

[[noreturn]] void fail(const Feature& feature, std::string_view text, const std::string& reason) {
    throw ProgramError(ExitStatus::badValue,
                       feature.getName() + ": " + inQuotes(text) + " " + reason);
}

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

bool removeSuffix(std::string_view& text, std::string_view suffix) {
    const bool isThere = text.ends_with(suffix);
    text.remove_suffix(isThere ? suffix.size() : 0);
    return isThere;
}

template <typename Number>
std::optional<Number> parseNumber(std::string_view text) {
    Number number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isWhole = error == std::errc() && end == text.data() + text.size();
    return isWhole ? std::optional(number) : std::nullopt;
}

struct LengthUnit {
    std::string_view name;
    double hundredths; // of a millimetre
};
constexpr std::array<LengthUnit, 5> lengthUnits = {{
    {"mm", 100},
    {"cm", 1000},
    {"in", 2540},
    {"\"", 2540},
    {"pt", 2540.0 / 72},
}};

/// Takes a unit of length off the end of a text; null if there is none.
const LengthUnit* removeUnit(std::string_view& text) {
    const auto unit = std::ranges::find_if(
        lengthUnits, [&](const LengthUnit& each) { return removeSuffix(text, each.name); });
    return unit == lengthUnits.end() ? nullptr : &*unit;
}

/// Hundredths of a millimetre from a number of units.
std::optional<std::int32_t> parseLength(std::string_view text, const LengthUnit& unit) {
    constexpr double largest = 2'000'000'000;
    const std::optional<double> number = parseNumber<double>(trimmed(text));
    if (!number || !(std::abs(*number * unit.hundredths) < largest)) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(std::lround(*number * unit.hundredths));
}

std::optional<std::int32_t> parseQuantity(const Feature& feature, std::string_view text) {
    const LengthUnit* const unit = isLength(feature.getUnit()) ? removeUnit(text) : nullptr;
    return unit == nullptr ? parseNumber<std::int32_t>(text) : parseLength(text, *unit);
}

void checkLowest(const Feature& feature, std::string_view text, std::int32_t number) {
    if (const std::int32_t lowest = feature.getUnit().lowest; number < lowest) {
        fail(feature, text, "is too small: the lowest is " + std::to_string(lowest));
    }
}

std::int32_t parseInteger(const Feature& feature, std::string_view text) {
    const std::optional<std::int32_t> number = parseQuantity(feature, text);
    if (!number) {
        fail(feature, text, "isn't " + describeSyntax(feature));
    }
    checkLowest(feature, text, *number);
    return *number;
}

Range parseRange(const Feature& feature, std::string_view text) {
    const std::size_t dash = text.find('-', 1);
    const auto lower = parseNumber<std::int32_t>(trimmed(text.substr(0, dash)));
    const auto upper = dash == std::string_view::npos
                           ? lower
                           : parseNumber<std::int32_t>(trimmed(text.substr(dash + 1)));
    if (!lower || !upper) {
        fail(feature, text, "isn't " + describeSyntax(feature));
    }
    checkLowest(feature, text, *lower);
    if (*upper < *lower) {
        fail(feature, text, "ends before it begins");
    }
    return {*lower, *upper};
}

/// Two numbers with an x between them.
template <typename Parse>
std::optional<Range> parsePair(std::string_view text, const Parse& parse) {
    const std::size_t cross = text.find('x');
    if (cross == std::string_view::npos) {
        return std::nullopt;
    }
    const std::optional<std::int32_t> first = parse(trimmed(text.substr(0, cross)));
    const std::optional<std::int32_t> second = parse(trimmed(text.substr(cross + 1)));
    return first && second ? std::optional(Range{*first, *second}) : std::nullopt;
}

DotDensity parseResolution(const Feature& feature, std::string_view text) {
    std::string_view numbers = text;
    const bool isMetric = removeSuffix(numbers, "dpcm");
    const bool hasUnit = isMetric || removeSuffix(numbers, "dpi");
    numbers = trimmed(numbers);
    std::optional<Range> pair = parsePair(numbers, parseNumber<std::int32_t>);
    if (const auto single = parseNumber<std::int32_t>(numbers)) {
        pair = Range{*single, *single};
    }
    if (!pair || !hasUnit || pair->lower < 1 || pair->upper < 1) {
        fail(feature, text, "isn't " + describeSyntax(feature));
    }
    return {pair->lower, pair->upper, isMetric ? dotsPerCentimetre : dotsPerInch};
}

/// "A4" and "SIZE_A4", "Letter" and "SIZE_8PT5x11" name the same.
std::optional<Size> findNamedSize(std::string_view name) {
    constexpr std::string_view prefix = "SIZE_";
    for (const zent::StockSize& size : getNamedSizes()) {
        const std::string code = toUtf8(size.getSizeName());
        const std::string display = toUtf8(size.getDisplayName());
        if (equalsIgnoringCase(name, code) ||
            equalsIgnoringCase(name, code.substr(prefix.size())) ||
            equalsIgnoringCase(name, display.substr(0, display.find(" (")))) {
            return Size{size.getShortEdge(), size.getLongEdge()};
        }
    }
    return std::nullopt;
}

/// Refuses a size that is too small to be meant: numbers without a unit are hundredths of a
/// millimetre.
void checkSizeIsMeant(const Feature& feature, std::string_view text, const Range& sides) {
    constexpr std::int32_t smallest = 1000;
    if (std::min(sides.lower, sides.upper) < smallest) {
        fail(feature, text,
             "is smaller than 10 x 10 mm: without a unit the numbers are hundredths of a "
             "millimetre; did you mean " +
                 inQuotes(std::string(text) + "mm") + "?");
    }
}

Size parseSize(const Feature& feature, std::string_view text) {
    if (const std::optional<Size> named = findNamedSize(text)) {
        return *named;
    }
    std::string_view numbers = text;
    const LengthUnit* const unit = removeUnit(numbers);
    // Each side may have a unit. Without one, the first side has that of the second.
    const auto parseSide = [unit](std::string_view side) {
        const LengthUnit* const own = removeUnit(side);
        return parseLength(side, own == nullptr ? *unit : *own);
    };
    const std::optional<Range> pair = unit != nullptr
                                          ? parsePair(numbers, parseSide)
                                          : parsePair(numbers, parseNumber<std::int32_t>);
    if (!pair) {
        fail(feature, text, "isn't " + describeSyntax(feature));
    }
    if (unit == nullptr) {
        checkSizeIsMeant(feature, text, *pair);
    }
    checkLowest(feature, text, std::min(pair->lower, pair->upper));
    return {pair->lower, pair->upper};
}

/// Refuses characters that XML can't hold, since no ticket can.
void checkCharacters(const Feature& feature, std::string_view text, std::u16string_view units) {
    for (const char16_t unit : units) {
        const bool isAllowedControl = unit == u'\t' || unit == u'\n' || unit == u'\r';
        if ((unit < 0x20 && !isAllowedControl) || unit >= 0xFFFE) {
            fail(feature, text, "has a character that a ticket can't hold");
        }
    }
}

std::vector<std::string> getValueNames(const Feature& feature) {
    std::vector<std::string> names;
    for (const zent::FeatureValue& value : feature.getValues()) {
        names.push_back(toUtf8(value.getText()));
    }
    return names;
}

struct FinishingName {
    std::string_view number;
    std::string_view name;
};
// The names that the Internet Printing Protocol gives to the numbers (PWG 5100.1). The finisher's
// own programs, from 110 on, have no names.
constexpr std::array<FinishingName, 14> finishingNames = {{
    {"3", "none"},
    {"7", "bind"},
    {"13", "booklet-maker"},
    {"14", "jog-offset"},
    {"20", "staple-top-left"},
    {"21", "staple-bottom-left"},
    {"22", "staple-top-right"},
    {"23", "staple-bottom-right"},
    {"28", "staple-dual-left"},
    {"29", "staple-dual-top"},
    {"30", "staple-dual-right"},
    {"31", "staple-dual-bottom"},
    {"50", "bind-left"},
    {"52", "bind-right"},
}};

/// The texts by which values may be typed: the name, or the value itself if it has none.
std::vector<std::string> getTypedNames(const Feature& feature) {
    std::vector<std::string> names;
    for (const std::string& value : getValueNames(feature)) {
        const std::string_view name = getAlias(feature, value);
        names.push_back(name.empty() ? value : std::string(name));
    }
    return names;
}

std::string listValues(const Feature& feature, std::string_view text) {
    constexpr std::size_t mostListed = 24;
    const std::vector<std::string> names = getTypedNames(feature);
    const std::vector<std::string> values = getValueNames(feature);
    const std::string nearest = findNearest(text, names);
    std::string result = nearest.empty() ? "" : "; did you mean " + inQuotes(nearest) + "?";
    if (names.size() > mostListed) {
        return result + " (\"jobticket features " + feature.getName() + "\" lists the values)";
    }
    result += " (allowed:";
    for (std::size_t index = 0; index < names.size(); ++index) {
        result += (index == 0 ? " " : ", ") + names[index];
        result += names[index] == values[index] ? "" : " or " + values[index];
    }
    return result + ")";
}

std::u16string parseKnownValue(const Feature& feature, std::string_view text) {
    const auto named = std::ranges::find_if(finishingNames, [&](const FinishingName& row) {
        return equalsIgnoringCase(row.name, text);
    });
    const bool isNamed =
        feature.getNumber() == zent::feature::finishings && named != finishingNames.end();
    std::u16string units = fromUtf8(isNamed ? named->number : text);
    if (!zent::FeatureValue::isKnownValue(feature.getNumber(), zent::CXString(units))) {
        fail(feature, text, "is none of its values" + listValues(feature, text));
    }
    return units;
}

std::u16string parseText(const Feature& feature, std::string_view text) {
    std::u16string units = fromUtf8(feature.keepsWhiteSpace() ? text : trimmed(text));
    checkCharacters(feature, text, units);
    if (units.empty()) {
        fail(feature, text, "is blank");
    }
    return units;
}

Value parseValue(const Feature& feature, std::string_view text) {
    const std::string_view core = trimmed(text);
    switch (feature.getKind()) {
    case ValueKind::keyword:
        return feature.takesOwnValues() ? parseText(feature, text) : parseKnownValue(feature, core);
    case ValueKind::text:
        return parseText(feature, text);
    case ValueKind::number:
        return parseInteger(feature, core);
    case ValueKind::range:
        return parseRange(feature, core);
    case ValueKind::resolution:
        return parseResolution(feature, core);
    case ValueKind::size:
        return parseSize(feature, core);
    case ValueKind::collection:
        break;
    }
    throw ProgramError(ExitStatus::badValue,
                       feature.getName() +
                           " has no value of its own: set the features in it, as \"" +
                           describeSyntax(feature) + "\"");
}

std::string exampleMember(const Feature& collection) {
    for (const Feature& feature : Feature::all()) {
        if (!collection.isPageLevel() && feature.isMemberOf(collection) &&
            feature.getKind() != ValueKind::collection) {
            return feature.getName() + "=...";
        }
    }
    return collection.getName() + (collection.takesSeveral() ? "[0]" : "") + ".media-color=...";
}

} // namespace

std::vector<Value> parseValues(const Feature& feature, std::string_view text) {
    if (feature.getKind() != ValueKind::collection && text.empty()) {
        throw ProgramError(ExitStatus::badValue, feature.getName() +
                                                     ": the value is empty (\"jobticket unset\" "
                                                     "removes a feature)");
    }
    std::vector<Value> values;
    for (std::string_view rest = text;;) {
        const std::size_t comma = feature.takesSeveral() ? rest.find(',') : std::string_view::npos;
        values.push_back(parseValue(feature, rest.substr(0, comma)));
        if (comma == std::string_view::npos) {
            return values;
        }
        rest.remove_prefix(comma + 1);
    }
}

std::string_view getAlias(const Feature& feature, std::string_view value) {
    if (feature.getNumber() != zent::feature::finishings) {
        return {};
    }
    const auto row = std::ranges::find(finishingNames, value, &FinishingName::number);
    return row == finishingNames.end() ? std::string_view() : row->name;
}

std::vector<zent::StockSize> getNamedSizes() {
    std::vector<zent::StockSize> sizes;
    for (std::uint32_t code = zent::StockSize::codeUnspecified + 1;
         code < zent::StockSize::codeOther; ++code) {
        sizes.emplace_back(code);
    }
    return sizes;
}

NamedValue toNamedValue(const zent::FeatureValue& value) {
    return {toUtf8(value.getText()), toPrintable(value.getDisplayString())};
}

NamedValue toNamedValue(const zent::StockSize& size) {
    return {toUtf8(size.getSizeName()), toPrintable(size.getDisplayName())};
}

NamedValue toNamedValue(const DotDensity& density) {
    const std::string across = std::to_string(density.crossFeed);
    const std::string along = std::to_string(density.feed);
    const std::string unit = density.units == dotsPerCentimetre ? "dpcm" : "dpi";
    return {across + "x" + along + unit, across + " x " + along + " " + unit};
}

std::vector<NamedValue> getNamedValues(const Feature& feature) {
    std::vector<NamedValue> values;
    for (const zent::FeatureValue& value : feature.getValues()) {
        values.push_back(toNamedValue(value));
    }
    if (feature.getKind() == ValueKind::size) {
        for (const zent::StockSize& size : getNamedSizes()) {
            values.push_back(toNamedValue(size));
        }
    }
    return values;
}

std::string findMisspeltValue(const Feature& feature, const Value& value) {
    const auto* text = std::get_if<std::u16string>(&value);
    if (text == nullptr || feature.getKind() != ValueKind::keyword ||
        zent::FeatureValue::isKnownValue(feature.getNumber(), zent::CXString(*text))) {
        return {};
    }
    return findNearest(toUtf8(*text), getValueNames(feature));
}

std::string describeSyntax(const Feature& feature) {
    switch (feature.getKind()) {
    case ValueKind::keyword:
        return feature.takesOwnValues() ? "one of the values, or a name of your own"
                                        : "one of the values";
    case ValueKind::text:
        return "a text of your own";
    case ValueKind::number:
        return isLength(feature.getUnit())
                   ? "a length: 500 (hundredths of a millimetre), 5mm, 0.5cm, 0.2in or 14pt"
                   : "a number";
    case ValueKind::range:
        return "a range of numbers, as 3-7 or 3";
    case ValueKind::resolution:
        return "a resolution, as 600dpi, 600x1200dpi or 240dpcm";
    case ValueKind::size:
        return "a size, as A4, Letter, 210x297mm, 8.5x11in, 595x842pt or 21000x29700 (hundredths "
               "of a "
               "millimetre)";
    case ValueKind::collection:
        break;
    }
    return exampleMember(feature);
}

} // namespace jobticket
