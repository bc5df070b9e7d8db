#include "ocore/OrdoParse/SharedTexts.h"

namespace zent {

namespace {

/// The key is made of the length, the ends and the middle, which differ even between names that
/// differ in one place, such as those of a pair.
std::size_t keyOf(std::u16string_view text) {
    const std::size_t size = text.size();
    if (size == 0) {
        return 0;
    }
    return size * 7 + text.front() * std::size_t{31} + text[size / 2] * std::size_t{131} +
           text.back() * std::size_t{17};
}

} // namespace

CXString trimmedText(std::u16string_view text) {
    CXString result(text);
    const auto mayBeSpace = [](char16_t unit) { return unit <= u' ' || unit > u'~'; };
    if (!text.empty() && (mayBeSpace(text.front()) || mayBeSpace(text.back()))) {
        result.trim();
    }
    return result;
}

const CXString& SharedTexts::trimmed(std::u16string_view text) {
    Entry& entry = m_entries[keyOf(text) % m_entries.size()];
    if (entry.text != text) {
        entry = {text, trimmedText(text)};
    }
    return entry.trimmed;
}

} // namespace zent
