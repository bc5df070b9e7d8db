#include "platform/InputRule.h"

#include "platform/Surrogates.h"

namespace zent::platform {

namespace {

constexpr std::u16string_view lineEnd = u"\r\n";

/// Takes the first character off a text: one unit, a surrogate pair, or a line end, which is CR LF
/// however it was written.
std::u16string_view takeCharacter(std::u16string_view& text) {
    const char16_t first = text.front();
    const bool isPair = text.size() > 1 && isHighSurrogate(first) && isLowSurrogate(text[1]);
    const std::u16string_view unit = text.substr(0, text.starts_with(lineEnd) || isPair ? 2 : 1);
    text.remove_prefix(unit.size());
    return first == u'\r' || first == u'\n' ? lineEnd : unit;
}

bool isSingleSurrogate(std::u16string_view character) {
    return character.size() == 1 &&
           (isHighSurrogate(character.front()) || isLowSurrogate(character.front()));
}

} // namespace

std::u16string InputRule::accept(std::u16string_view text, std::size_t start, std::size_t end,
                                 std::u16string_view entered) const {
    std::u16string result;
    std::u16string current(text);
    while (!entered.empty()) {
        const std::u16string_view character = takeCharacter(entered);
        const bool hasRoom = current.size() - (end - start) + character.size() <= limit;
        if (!hasRoom || (character == lineEnd && !hasLines)) {
            break; // only the beginning of what was entered is taken, so that it has no gaps
        }
        if (accepts(current, start, end, character)) {
            current.replace(start, end - start, character);
            start += character.size();
            end = start;
            result += character;
        }
    }
    return result;
}

bool InputRule::accepts(std::u16string_view text, std::size_t start, std::size_t end,
                        std::u16string_view character) const {
    const char16_t first = character.front();
    const bool isControl = (first < u' ' && character != lineEnd) || first == u'\x7F';
    const bool isDigit = first >= u'0' && first <= u'9';
    if (isControl || (isNumber && !isDigit) || isSingleSurrogate(character)) {
        return false;
    }
    const auto passes =
        [this](std::u16string_view where, std::size_t from, std::size_t to, char16_t unit) {
        return !filter ||
               filter(where, static_cast<std::int32_t>(from), static_cast<std::int32_t>(to), unit);
    };
    if (!passes(text, start, end, first)) {
        return false;
    }
    // A line end is one key, so that the filter is asked for it once.
    if (character.size() == 1 || character == lineEnd) {
        return true;
    }
    std::u16string withFirst(text);
    withFirst.replace(start, end - start, 1, first);
    return passes(withFirst, start + 1, start + 1, character.back());
}

} // namespace zent::platform
