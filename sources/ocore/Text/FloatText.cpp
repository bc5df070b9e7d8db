#include "ocore/Text/FloatText.h"

#include <charconv>
#include <cmath>

namespace zent {

namespace {

/// Room for the digits before the point, the point and the exponent of any number.
constexpr std::size_t longestWithoutFraction = 330;

std::string digits(double number, std::chars_format form, std::size_t precision) {
    std::string text(precision + longestWithoutFraction, '\0');
    const auto result = std::to_chars(text.data(), text.data() + text.size(), number, form,
                                      static_cast<int>(precision));
    text.resize(static_cast<std::size_t>(result.ptr - text.data()));
    return text;
}

/// Formats as 'g' does, with zeros kept: in scientific form if the exponent is below -4 or at least
/// the precision.
std::string generalWithZeros(double number, std::size_t precision) {
    const auto significant = static_cast<int>(precision == 0 ? 1 : precision);
    std::string text =
        digits(number, std::chars_format::scientific, static_cast<std::size_t>(significant - 1));
    const int exponent = std::stoi(text.substr(text.find('e') + 1));
    if (exponent >= -4 && exponent < significant) {
        text = digits(number, std::chars_format::fixed,
                      static_cast<std::size_t>(significant - 1 - exponent));
    }
    return text;
}

void ensurePoint(std::string& text) {
    if (text.find('.') == std::string::npos) {
        text.insert(std::min(text.find('e'), text.size()), 1, '.');
    }
}

} // namespace

std::string floatText(double magnitude, char form, std::size_t precision, bool alternate) {
    if (!std::isfinite(magnitude)) {
        return std::isnan(magnitude) ? "nan" : "inf";
    }
    std::string text;
    if (form == 'f') {
        text = digits(magnitude, std::chars_format::fixed, precision);
    } else if (form == 'e') {
        text = digits(magnitude, std::chars_format::scientific, precision);
    } else if (alternate) {
        text = generalWithZeros(magnitude, precision);
    } else {
        text = digits(magnitude, std::chars_format::general, precision);
    }
    if (alternate) {
        ensurePoint(text);
    }
    return text;
}

} // namespace zent
