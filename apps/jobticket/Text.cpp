#include "Text.h"

#include <algorithm>

#include "ExitStatus.h"
#include "platform/Surrogates.h"

namespace jobticket {

namespace {

using zent::platform::takeUtf8;

char toLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool isControl(char16_t unit) { return unit < 0x20 || (unit >= 0x7F && unit < 0xA0); }

std::string inHexadecimal(unsigned byte) {
    constexpr std::string_view digits = "0123456789abcdef";
    return {'\\', 'x', digits[byte >> 4U], digits[byte & 0xFU]};
}

std::string escaped(char16_t control) {
    switch (control) {
    case u'\n':
        return "\\n";
    case u'\r':
        return "\\r";
    case u'\t':
        return "\\t";
    default:
        return inHexadecimal(control);
    }
}

} // namespace

std::u16string fromUtf8(std::string_view text) {
    std::u16string result = takeUtf8(text);
    if (!text.empty()) {
        throw ProgramError(ExitStatus::usage, "an argument isn't UTF-8 text");
    }
    return result;
}

ZentText toZent(std::u16string_view text) { return {text.begin(), text.end()}; }

std::u16string fromZent(const ZentText& text) { return {text.begin(), text.end()}; }

std::string toPrintable(std::u16string_view text) {
    std::string result;
    while (!text.empty()) {
        const auto control = std::find_if(text.begin(), text.end(), isControl);
        const auto length = static_cast<std::size_t>(control - text.begin());
        result += toUtf8(text.substr(0, length));
        text.remove_prefix(length);
        if (!text.empty()) {
            result += escaped(text.front());
            text.remove_prefix(1);
        }
    }
    return result;
}

std::string toLine(std::u16string_view message) {
    constexpr std::size_t longest = 240;
    const std::size_t end = message.find_last_not_of(u" \r\n\t") + 1;
    if (end <= longest) {
        return toPrintable(message.substr(0, end));
    }
    const std::size_t sentence = message.rfind(u". ", longest);
    if (sentence != std::u16string_view::npos && sentence > longest / 4) {
        return toPrintable(message.substr(0, sentence + 1));
    }
    const std::size_t word = message.rfind(u' ', longest);
    return toPrintable(message.substr(0, std::min(word, longest))) + " ...";
}

std::string toPrintable(std::string_view text) {
    std::string result = toPrintable(takeUtf8(text));
    while (!text.empty()) { // begins with what isn't UTF-8
        result += inHexadecimal(static_cast<unsigned char>(text.front()));
        text.remove_prefix(1);
        result += toPrintable(takeUtf8(text));
    }
    return result;
}

std::string shorten(const std::string& text, std::size_t length) {
    constexpr std::u16string_view ellipsis = u"...";
    const std::u16string units = fromUtf8(text);
    if (units.size() <= length) {
        return text;
    }
    std::u16string start(zent::platform::cutText(units, length - ellipsis.size()));
    return toUtf8(start.append(ellipsis));
}

std::string inQuotes(std::string_view argument) { return '"' + toPrintable(argument) + '"'; }

bool equalsIgnoringCase(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, {}, toLower, toLower);
}

bool containsIgnoringCase(std::string_view text, std::string_view part) {
    return std::search(text.begin(), text.end(), part.begin(), part.end(),
                       [](char a, char b) { return toLower(a) == toLower(b); }) != text.end() ||
           part.empty();
}

} // namespace jobticket
