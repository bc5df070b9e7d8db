#include "Text.h"

#include <algorithm>
#include <array>
#include <cwchar>
#include <locale>

#include "ExitStatus.h"

namespace jobticket {

namespace {

using Utf8Converter = std::codecvt<char16_t, char8_t, std::mbstate_t>;

const Utf8Converter& converter() { return std::use_facet<Utf8Converter>(std::locale::classic()); }

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

/// As much of a text as is UTF-8; the rest stays.
std::u16string takeUtf8(std::string_view& text) {
    const std::u8string bytes(text.begin(), text.end());
    std::u16string result(bytes.size(), u'\0'); // never more units than bytes
    std::mbstate_t state = {};
    const char8_t* next = bytes.data();
    char16_t* end = result.data();
    converter().in(state, bytes.data(), bytes.data() + bytes.size(), next, result.data(),
                   result.data() + result.size(), end);
    result.resize(static_cast<std::size_t>(end - result.data()));
    text.remove_prefix(static_cast<std::size_t>(next - bytes.data()));
    return result;
}

} // namespace

std::string toUtf8(std::u16string_view text) {
    std::string result;
    while (!text.empty()) {
        std::mbstate_t state = {};
        std::array<char8_t, 256> chunk = {};
        const char16_t* next = text.data();
        char8_t* end = chunk.data();
        converter().out(state, text.data(), text.data() + text.size(), next, chunk.data(),
                        chunk.data() + chunk.size(), end);
        result.append(chunk.data(), end);
        if (next == text.data()) { // half of a surrogate pair
            result += "\xEF\xBF\xBD";
            ++next;
        }
        text.remove_prefix(static_cast<std::size_t>(next - text.data()));
    }
    return result;
}

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
    std::u16string units = fromUtf8(text);
    if (units.size() <= length) {
        return text;
    }
    units.resize(length - ellipsis.size());
    if ((units.back() & 0xFC00U) == 0xD800U) { // the other half is cut off
        units.pop_back();
    }
    return toUtf8(units.append(ellipsis));
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
