#include "ocore/Text/FormatSpecifier.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <string>

#include "ocore/Text/FloatText.h"
#include "platform/CodePage.h"
#include "platform/Surrogates.h"

namespace zent {

namespace {

using Value = FormatArgument::Value;

std::optional<std::uint64_t> integerBits(const Value& value) {
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        return static_cast<std::uint64_t>(*number);
    }
    if (const auto* number = std::get_if<std::uint64_t>(&value)) {
        return *number;
    }
    if (const auto* pointer = std::get_if<const void*>(&value)) {
        return std::bit_cast<std::uintptr_t>(*pointer);
    }
    return std::nullopt;
}

std::optional<double> floatValue(const Value& value) {
    if (const auto* number = std::get_if<double>(&value)) {
        return *number;
    }
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        return static_cast<double>(*number);
    }
    if (const auto* number = std::get_if<std::uint64_t>(&value)) {
        return static_cast<double>(*number);
    }
    return std::nullopt;
}

void toUpper(std::string& ascii) {
    for (char& c : ascii) {
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    }
}

std::string digitsOf(std::uint64_t number, int base) {
    std::array<char, 24> digits{}; // 22 octal digits at most
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, base).ptr;
    return {digits.data(), end};
}

/// Reads decimal digits, and stays at the maximum when they say more.
std::size_t takeExtent(std::u16string_view& rest) {
    std::size_t extent = 0;
    while (!rest.empty() && rest.front() >= u'0' && rest.front() <= u'9') {
        extent = std::min(extent * 10 + (rest.front() - u'0'), FormatSpecifier::maximumExtent);
        rest.remove_prefix(1);
    }
    return extent;
}

bool takePrefix(std::u16string_view& rest, std::u16string_view prefix) {
    const bool found = rest.starts_with(prefix);
    if (found) {
        rest.remove_prefix(prefix.size());
    }
    return found;
}

/// Takes the argument that a "*" stands for, as a number.
std::optional<std::int64_t> takeStar(FormatArgumentReader& arguments) {
    const FormatArgument* const argument = arguments.take();
    const auto bits = argument ? integerBits(argument->value()) : std::nullopt;
    if (!bits) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(*bits);
}

} // namespace

// Parsing

std::optional<FormatSpecifier> FormatSpecifier::parse(std::u16string_view& rest,
                                                      FormatArgumentReader& arguments) {
    FormatSpecifier specifier;
    for (; !rest.empty() && specifier.parseFlag(rest.front()); rest.remove_prefix(1)) {
    }
    if (!specifier.parseExtents(rest, arguments)) {
        return std::nullopt;
    }
    specifier.parseSizes(rest);
    constexpr std::u16string_view conversions = u"cCdiuoxXeEfgGpsSn%";
    if (rest.empty() || conversions.find(rest.front()) == std::u16string_view::npos) {
        return std::nullopt;
    }
    specifier.m_conversion = rest.front();
    rest.remove_prefix(1);
    return specifier;
}

bool FormatSpecifier::parseFlag(char16_t unit) {
    switch (unit) {
    case u'#':
        return m_alternate = true;
    case u'-':
        return m_leftAligned = true;
    case u'+':
        return m_plus = true;
    case u' ':
        return m_blank = true;
    case u'0':
        return m_zero = true;
    default:
        return false;
    }
}

bool FormatSpecifier::parseExtents(std::u16string_view& rest, FormatArgumentReader& arguments) {
    if (takePrefix(rest, u"*")) {
        const auto width = takeStar(arguments);
        if (!width) {
            return false;
        }
        setWidth(*width);
    } else {
        m_width = takeExtent(rest);
    }
    if (!takePrefix(rest, u".")) {
        return true;
    }
    if (!takePrefix(rest, u"*")) {
        m_precision = takeExtent(rest);
        return true;
    }
    const auto precision = takeStar(arguments);
    if (precision && *precision >= 0) {
        m_precision = std::min(static_cast<std::size_t>(*precision), maximumExtent);
    }
    return precision.has_value();
}

void FormatSpecifier::setWidth(std::int64_t width) {
    m_leftAligned = m_leftAligned || width < 0;
    m_width = std::min(static_cast<std::size_t>(std::abs(width)), maximumExtent);
}

void FormatSpecifier::parseSizes(std::u16string_view& rest) {
    for (bool found = true; found;) {
        found = true;
        if (takePrefix(rest, u"I64")) {
            m_size = Size::wide64;
        } else if (takePrefix(rest, u"h")) {
            m_size = Size::half;
        } else if (takePrefix(rest, u"l")) {
            m_size = Size::longer;
        } else {
            // These prefixes stand for long double, far and near pointers, which the types of the
            // arguments tell already.
            found = takePrefix(rest, u"L") || takePrefix(rest, u"F") || takePrefix(rest, u"N");
        }
    }
}

// Formatting

bool FormatSpecifier::format(FormatArgumentReader& arguments, FormatOutput& output) const {
    if (m_conversion == u'%') {
        output.append(1, u'%');
        return true;
    }
    const FormatArgument* const argument = arguments.take();
    if (!argument) {
        return false;
    }
    switch (m_conversion) {
    case u'n':
        return true; // "%n" would write to the argument: it is taken, and nothing is written
    case u'c':
    case u'C':
        return formatCharacter(*argument, output);
    case u's':
    case u'S':
        return formatText(*argument, output);
    case u'p':
        return formatPointer(*argument, output);
    case u'e':
    case u'E':
    case u'f':
    case u'g':
    case u'G':
        return formatFloat(*argument, output);
    default:
        return formatInteger(*argument, output);
    }
}

template <typename Unit>
void FormatSpecifier::appendField(const Field<Unit>& field, bool fillWithZeros,
                                  FormatOutput& output) const {
    const std::size_t size = field.prefix.size() + field.zeros + field.body.size();
    const std::size_t fill = m_width > size ? m_width - size : 0;
    const bool zerosFirst = fillWithZeros && !m_leftAligned;
    if (!zerosFirst && !m_leftAligned) {
        output.append(fill, u' ');
    }
    output.append(field.prefix);
    output.append(field.zeros + (zerosFirst ? fill : 0), u'0');
    output.append(field.body);
    if (m_leftAligned) {
        output.append(fill, u' ');
    }
}

bool FormatSpecifier::formatCharacter(const FormatArgument& argument, FormatOutput& output) const {
    const auto bits = integerBits(argument.value());
    if (!bits) {
        return false;
    }
    std::u16string text(1, static_cast<char16_t>(*bits));
    const bool narrow = m_conversion == u'C' ? m_size != Size::longer : m_size == Size::half;
    if (narrow && text[0] >= 0x80) {
        const char byte = static_cast<char>(*bits);
        text = platform::fromAnsi({&byte, 1});
    }
    appendField(Field<char16_t>{{}, 0, text}, false, output);
    return true;
}

bool FormatSpecifier::formatText(const FormatArgument& argument, FormatOutput& output) const {
    std::u16string_view text;
    std::u16string converted;
    if (const auto* wide = std::get_if<FormatArgument::WideText>(&argument.value())) {
        text = wide->text ? std::u16string_view(wide->text, wide->length) : u"(null)";
    } else if (const auto* narrow = std::get_if<FormatArgument::NarrowText>(&argument.value())) {
        if (narrow->text) {
            converted = platform::fromAnsi({narrow->text, narrow->length});
        }
        text = narrow->text ? std::u16string_view(converted) : u"(null)";
    } else {
        return false;
    }
    text = platform::cutText(text, m_precision.value_or(text.size()));
    appendField(Field<char16_t>{{}, 0, text}, false, output);
    return true;
}

bool FormatSpecifier::formatPointer(const FormatArgument& argument, FormatOutput& output) const {
    std::optional<std::uint64_t> address = integerBits(argument.value());
    if (const auto* wide = std::get_if<FormatArgument::WideText>(&argument.value())) {
        address = std::bit_cast<std::uintptr_t>(wide->text);
    } else if (const auto* narrow = std::get_if<FormatArgument::NarrowText>(&argument.value())) {
        address = std::bit_cast<std::uintptr_t>(narrow->text);
    }
    if (!address) {
        return false;
    }
    std::string digits = digitsOf(static_cast<std::uintptr_t>(*address), 16);
    toUpper(digits);
    const std::size_t zeros = 2 * sizeof(void*) - digits.size();
    appendField(Field<char>{{}, zeros, digits}, false, output);
    return true;
}

std::int64_t FormatSpecifier::cutSigned(std::uint64_t bits) const {
    switch (m_size) {
    case Size::half:
        return static_cast<std::int16_t>(bits);
    case Size::wide64:
        return static_cast<std::int64_t>(bits);
    default:
        return static_cast<std::int32_t>(bits);
    }
}

std::uint64_t FormatSpecifier::cutUnsigned(std::uint64_t bits) const {
    switch (m_size) {
    case Size::half:
        return static_cast<std::uint16_t>(bits);
    case Size::wide64:
        return bits;
    default:
        return static_cast<std::uint32_t>(bits);
    }
}

std::string_view FormatSpecifier::signOf(bool negative) const {
    return negative ? "-" : m_plus ? "+" : m_blank ? " " : "";
}

bool FormatSpecifier::formatInteger(const FormatArgument& argument, FormatOutput& output) const {
    const auto bits = integerBits(argument.value());
    if (!bits) {
        return false;
    }
    std::uint64_t magnitude = cutUnsigned(*bits);
    std::string_view prefix;
    int base = 10;
    if (m_conversion == u'd' || m_conversion == u'i') {
        const std::int64_t number = cutSigned(*bits);
        magnitude = static_cast<std::uint64_t>(number);
        magnitude = number < 0 ? 0 - magnitude : magnitude;
        prefix = signOf(number < 0);
    } else if (m_conversion == u'o') {
        base = 8;
    } else if (m_conversion == u'x' || m_conversion == u'X') {
        base = 16;
    }
    const bool absent = magnitude == 0 && m_precision == 0U;
    std::string digits = absent ? std::string() : digitsOf(magnitude, base);
    std::size_t zeros = std::max(m_precision.value_or(0), digits.size()) - digits.size();
    if (m_alternate && base == 8 && zeros == 0 && !digits.starts_with('0')) {
        zeros = 1;
    }
    if (m_alternate && base == 16 && magnitude != 0) {
        prefix = m_conversion == u'X' ? "0X" : "0x";
    }
    if (m_conversion == u'X') {
        toUpper(digits);
    }
    appendField(Field<char>{prefix, zeros, digits}, m_zero && !m_precision, output);
    return true;
}

bool FormatSpecifier::formatFloat(const FormatArgument& argument, FormatOutput& output) const {
    const auto number = floatValue(argument.value());
    if (!number) {
        return false;
    }
    const bool upper = m_conversion == u'E' || m_conversion == u'G';
    const char form = static_cast<char>(upper ? m_conversion - u'A' + u'a' : m_conversion);
    std::string digits = floatText(std::fabs(*number), form, m_precision.value_or(6), m_alternate);
    if (upper) {
        toUpper(digits);
    }
    appendField(Field<char>{signOf(std::signbit(*number)), 0, digits},
                m_zero && std::isfinite(*number), output);
    return true;
}

} // namespace zent
