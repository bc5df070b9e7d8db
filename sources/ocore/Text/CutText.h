#pragma once

#include <cstddef>
#include <string_view>

namespace zent {

/// At most the first `length` units of a text, without the first half of a surrogate pair whose
/// second half is cut off.
constexpr std::u16string_view cutText(std::u16string_view text, std::size_t length) {
    if (length >= text.size()) {
        return text;
    }
    const bool splitsPair =
        length > 0 && (text[length - 1] & 0xFC00) == 0xD800 && (text[length] & 0xFC00) == 0xDC00;
    return text.substr(0, splitsPair ? length - 1 : length);
}

} // namespace zent
