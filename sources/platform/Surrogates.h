#pragma once

#include <cstddef>
#include <string_view>

namespace zent::platform {

/// Whether a unit is the first, or the second, half of a character beyond the first 65,536.
constexpr bool isHighSurrogate(char16_t unit) { return (unit & 0xFC00) == 0xD800; }
constexpr bool isLowSurrogate(char16_t unit) { return (unit & 0xFC00) == 0xDC00; }

/// The beginning of a text, of at most so many units, without half of a character at its end.
constexpr std::u16string_view cutText(std::u16string_view text, std::size_t length) {
    const std::u16string_view start = text.substr(0, length);
    const bool cutsPair = start.size() < text.size() && !start.empty() &&
                          isHighSurrogate(start.back()) && isLowSurrogate(text[start.size()]);
    return start.substr(0, start.size() - (cutsPair ? 1 : 0));
}

} // namespace zent::platform
