#include "Text.h"

#include <algorithm>
#include <numeric>

#include "Errors.h"
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
    while (!text.empty()) { // the text begins with a byte that isn't UTF-8
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

namespace {

/// The number of letters to insert, leave out or replace, to make one text of another.
std::size_t editDistance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t(0));
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t replaced = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({replaced, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row.back();
}

/// Of the names that begin with a text, or else hold it, the shortest; empty if there is none.
std::string findShortestWith(std::string_view text, const std::vector<std::string>& names) {
    constexpr std::size_t leastPart = 3; // a shorter text is a part of many names by chance
    std::string found;
    bool isStart = false;
    for (const std::string& name : names) {
        const bool starts = name.starts_with(text);
        if (text.size() < (starts ? leastPart - 1 : leastPart) ||
            name.find(text) == std::string::npos || (isStart && !starts)) {
            continue;
        }
        if (found.empty() || (starts && !isStart) || name.size() < found.size()) {
            found = name;
            isStart = starts;
        }
    }
    return found;
}

} // namespace

std::string findNearest(std::string_view text, const std::vector<std::string>& names) {
    constexpr std::size_t longestText = 64; // a longer text is no misspelt name
    const bool isNumber = text.find_first_not_of("0123456789") == std::string_view::npos;
    if (isNumber || text.size() > longestText) {
        return {};
    }
    if (const std::string name = findShortestWith(text, names); !name.empty()) {
        return name;
    }
    std::string nearest;
    std::size_t best = text.size() / 3 + 2; // allows for a slip in every third letter, and one more
    for (const std::string& name : names) {
        const std::size_t distance = editDistance(text, name);
        if (distance < best) {
            best = distance;
            nearest = name;
        }
    }
    return nearest;
}

} // namespace jobticket
