#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "platform/DialogItems.h"

namespace zent::platform {

/// What an edit item takes of the characters that a user types or pastes.
struct InputRule {
    CharacterFilter filter;
    std::size_t limit = std::numeric_limits<std::size_t>::max(); // units of the whole text
    bool hasLines = false;
    bool isNumber = false; // decimal digits alone

    /// Gives what is taken of `entered`, which is to replace the part [start, end) of `text`. A
    /// surrogate pair is taken as a whole or not at all, and a single surrogate never.
    std::u16string accept(std::u16string_view text, std::size_t start, std::size_t end,
                          std::u16string_view entered) const;

private:
    bool accepts(std::u16string_view text, std::size_t start, std::size_t end,
                 std::u16string_view character) const;
};

} // namespace zent::platform
