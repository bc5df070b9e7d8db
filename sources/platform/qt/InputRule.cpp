#include "platform/qt/InputRule.h"

namespace zent::platform::qt {

std::u16string InputRule::accept(std::u16string_view text, std::size_t start, std::size_t end,
                                 std::u16string_view entered) const {
    std::u16string result;
    std::u16string current(text);
    for (const char16_t character : entered) {
        const bool endsLine = character == u'\r' || character == u'\n';
        if (endsLine && !hasLines) {
            break;
        }
        // A line end is one key, and asked for as that.
        if (character == u'\n' || !accepts(current, start, end, character)) {
            continue;
        }
        const std::u16string_view taken = endsLine ? u"\r\n" : std::u16string_view(&character, 1);
        if (current.size() - (end - start) + taken.size() > limit) {
            continue;
        }
        current.replace(start, end - start, taken);
        start += taken.size();
        end = start;
        result += taken;
    }
    return result;
}

bool InputRule::accepts(std::u16string_view text, std::size_t start, std::size_t end,
                        char16_t character) const {
    const bool isControl = (character < u' ' && character != u'\r') || character == u'\x7F';
    const bool isDigit = character >= u'0' && character <= u'9';
    return !isControl && (isDigit || !isNumber) &&
           (!filter || filter(text, static_cast<std::int32_t>(start),
                              static_cast<std::int32_t>(end), character));
}

} // namespace zent::platform::qt
