#pragma once

#include <cstdint>
#include <string_view>

#include "plugin_ui/Controls/NumberText.h"

namespace zent {

/// An edit item at the moment when a character is typed.
struct TypingState {
    std::u16string_view text;
    /// The part that the character replaces, [start, end); equal for none.
    std::int32_t selectionStart = 0;
    std::int32_t selectionEnd = 0;
    std::uint32_t maximumLength = 0;
};

/// What a text box takes. The items keep these numbers as a property of theirs.
enum class FilterMode : std::uint32_t {
    all = 1,
    lettersAndDigits = 2,
    lettersAndDigitsNoSpaces = 3, // for features whose values hold no spaces; the same characters
    lettersDigitsAndMarks = 4,    // also a space, "!" and "_"
};

/// Whether a number box takes a character at the place of the selection. Raises
/// UnknownCaseException for an unknown type.
bool acceptsNumberCharacter(NumberType type, const TypingState& state, char16_t character);
/// Whether a text box takes it. Raises the same for an unknown mode.
bool acceptsTextCharacter(FilterMode mode, const TypingState& state, char16_t character);

} // namespace zent
