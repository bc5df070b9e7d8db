#include "plugin_ui/Controls/CharacterFilter.h"

#include <algorithm>

#include "ocore/Faults/Exceptions.h"
#include "platform/Locale.h"

namespace zent {

namespace {

bool isEditingKey(char16_t character) {
    constexpr char16_t backspace = 8;
    constexpr char16_t escape = 0x1B;
    return character == backspace || character == escape;
}

bool isFull(const TypingState& state) {
    return state.text.size() >= state.maximumLength && state.selectionStart == state.selectionEnd;
}

/// Whether a character stands in what the selection leaves of the text.
bool holdsOutsideSelection(const TypingState& state, char16_t character) {
    const auto place = [&](std::int32_t position) {
        const auto index = static_cast<std::size_t>(std::max(position, 0));
        return std::min(index, state.text.size());
    };
    return state.text.substr(0, place(state.selectionStart)).find(character) !=
               std::u16string_view::npos ||
           state.text.substr(place(state.selectionEnd)).find(character) !=
               std::u16string_view::npos;
}

bool isNumberCharacter(NumberType type, char16_t character) {
    const bool isDigit = character >= u'0' && character <= u'9';
    switch (type) {
    case NumberType::unsignedInteger:
        return isDigit;
    case NumberType::decimal:
        return isDigit || character == u'.' || character == u'-';
    case NumberType::signedInteger:
        return isDigit || character == u'-';
    }
    Raise<UnknownCaseException>{}("NumberBoxUIControl::NumberBoxWindowProc : Unknown control value "
                                  "for save format.\r\n");
}

bool isTextCharacter(FilterMode mode, char16_t character) {
    switch (mode) {
    case FilterMode::all:
        return true;
    case FilterMode::lettersAndDigits:
    case FilterMode::lettersAndDigitsNoSpaces:
        return platform::isLetterOrDigit(character);
    case FilterMode::lettersDigitsAndMarks:
        return platform::isLetterOrDigit(character) || character == u' ' || character == u'!' ||
               character == u'_';
    }
    Raise<UnknownCaseException>{}("TextBoxUIControl::TextBoxWindowProc : Unknown control value for "
                                  "save format.\r\n");
}

} // namespace

// Text is refused as it is typed, so that a number box never holds what isn't the beginning of a
// number; what is pasted comes here character by character.
bool acceptsNumberCharacter(NumberType type, const TypingState& state, char16_t character) {
    if (isEditingKey(character)) {
        return true;
    }
    if (isFull(state) || !isNumberCharacter(type, character)) {
        return false;
    }
    if (character == u'-') {
        return state.selectionStart <= 0 && !holdsOutsideSelection(state, character);
    }
    return character != u'.' || !holdsOutsideSelection(state, character);
}

bool acceptsTextCharacter(FilterMode mode, const TypingState& state, char16_t character) {
    return isEditingKey(character) || (!isFull(state) && isTextCharacter(mode, character));
}

} // namespace zent
