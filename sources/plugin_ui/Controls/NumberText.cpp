#include "plugin_ui/Controls/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace zent {

std::uint16_t countDigits(std::int32_t number) {
    return static_cast<std::uint16_t>(std::to_string(number).size());
}

// The standard's parsers look at the locale, take more than boxes do, or know no UTF-16.
std::int64_t parseInteger(std::u16string_view text, bool isSigned) {
    text.remove_prefix(std::min(text.find_first_not_of(u" \t"), text.size()));
    const bool isNegative = isSigned && text.starts_with(u'-');
    text.remove_prefix(isNegative ? 1 : 0);
    const std::int64_t limit =
        isSigned ? std::numeric_limits<std::int32_t>::max() + std::int64_t{isNegative}
                 : std::int64_t{std::numeric_limits<std::uint32_t>::max()};
    std::int64_t number = 0;
    for (const char16_t digit : text.substr(0, text.find_first_not_of(u"0123456789"))) {
        number = number * 10 + (digit - u'0');
        if (number > limit) {
            return 0;
        }
    }
    return isNegative ? -number : number;
}

double parseDecimal(std::u16string_view text) {
    const auto first = std::ranges::find_if(text, [](char16_t unit) { return unit != u' '; });
    std::string narrow;
    for (auto unit = first; unit != text.end(); ++unit) {
        narrow += *unit < 0x80 ? static_cast<char>(*unit) : '?';
    }
    double value = 0;
    std::from_chars(narrow.data(), narrow.data() + narrow.size(), value, std::chars_format::fixed);
    return std::isfinite(value) ? value : 0;
}

CXString formatDecimal(double value, std::uint32_t decimals) {
    return CXString::Format(decimals == 2 ? u"%.2f" : u"%.1f", value);
}

double stepDecimal(double value, std::uint32_t decimals, std::int32_t delta,
                   const NumberBounds<double>* bounds) {
    const double factor = std::pow(10.0, decimals);
    const double next = (value * factor - delta) / factor;
    const bool isOutside = bounds != nullptr && (next < bounds->lower || next > bounds->upper);
    return isOutside ? value : next;
}

std::int32_t stepInteger(double value, std::int32_t delta,
                         const NumberBounds<std::int32_t>* bounds) {
    using Limits = std::numeric_limits<std::int32_t>;
    const double lower = bounds != nullptr ? bounds->lower : Limits::min();
    const double upper = bounds != nullptr ? bounds->upper : Limits::max();
    return static_cast<std::int32_t>(std::max(lower, std::min(std::trunc(value) - delta, upper)));
}

} // namespace zent
