#include "Value.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

#include "ExitStatus.h"
#include "Spelling.h"
#include "Text.h"

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

/// Hundredths from a number of millimetres with at most two decimals.
std::optional<std::int32_t> parseMillimetres(std::string_view text) {
    constexpr double largest = 20'000'000;
    const std::optional<double> number = parseNumber<double>(text);
    if (!number || !(std::abs(*number) < largest)) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(std::lround(*number * 100));
}

std::optional<std::int32_t> parseQuantity(const Feature& feature, std::string_view text) {
    if (isLength(feature.getUnit()) && removeSuffix(text, "mm")) {
        return parseMillimetres(trimmed(text));
    }
    return parseNumber<std::int32_t>(text);
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

std::optional<Size> findNamedSize(std::string_view name) {
    for (const zent::StockSize& size : getNamedSizes()) {
        if (toUtf8(size.getSizeName()) == name) {
            return Size{size.getShortEdge(), size.getLongEdge()};
        }
    }
    return std::nullopt;
}

Size parseSize(const Feature& feature, std::string_view text) {
    if (const std::optional<Size> named = findNamedSize(text)) {
        return *named;
    }
    std::string_view numbers = text;
    const std::optional<Range> pair = removeSuffix(numbers, "mm")
                                          ? parsePair(trimmed(numbers), parseMillimetres)
                                          : parsePair(numbers, parseNumber<std::int32_t>);
    if (!pair) {
        fail(feature, text, "isn't " + describeSyntax(feature));
    }
    checkLowest(feature, text, std::min(pair->lower, pair->upper));
    return {pair->lower, pair->upper};
}

/// What XML can't hold can't be in a ticket.
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

std::string listValues(const Feature& feature, std::string_view text) {
    constexpr std::size_t mostListed = 24;
    const std::vector<std::string> names = getValueNames(feature);
    const std::string nearest = findNearest(text, names);
    std::string result = nearest.empty() ? "" : "; did you mean " + inQuotes(nearest) + "?";
    if (names.size() > mostListed) {
        return result + " (\"jobticket features " + feature.getName() + "\" lists the values)";
    }
    result += " (allowed:";
    for (const std::string& name : names) {
        result += (name == names.front() ? " " : ", ") + name;
    }
    return result + ")";
}

std::u16string parseKnownValue(const Feature& feature, std::string_view text) {
    std::u16string units = fromUtf8(text);
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
                   ? "a number of hundredths of a millimetre (500), or of millimetres (5mm)"
                   : "a number";
    case ValueKind::range:
        return "a range of numbers, as 3-7 or 3";
    case ValueKind::resolution:
        return "a resolution, as 600dpi, 600x1200dpi or 240dpcm";
    case ValueKind::size:
        return "a size, as 21000x29700 (hundredths of a millimetre), 210x297mm or SIZE_A4";
    case ValueKind::collection:
        break;
    }
    return exampleMember(feature);
}

} // namespace jobticket
