#include "ocore/FeatureSettings/SyntaxList.h"

#include <algorithm>

namespace zent {

namespace {
bool isGiven(const SyntaxList::Entry& entry) {
    return !entry.first.isEmpty() && entry.second != AVTE_NULL;
}

SyntaxList::Entry entryOf(const char16_t* keyword) {
    const CXString text(keyword);
    return {text, syntaxToAVTE(text)};
}
} // namespace

SyntaxList::SyntaxList(const Entry& first, const Entry& second, const Entry& third)
    : m_entries{first} {
    if (!isGiven(second)) {
        return;
    }
    m_entries.push_back(second);
    m_multiple = true;
    if (isGiven(third)) {
        m_entries.push_back(third);
    }
}

SyntaxList::SyntaxList(const std::array<const char16_t*, 3>& keywords)
    : SyntaxList(entryOf(keywords[0]), entryOf(keywords[1]), entryOf(keywords[2])) {}

bool SyntaxList::hasAVTE(AVTE type) const {
    return std::ranges::find(m_entries, type, &Entry::second) != m_entries.end();
}

bool SyntaxList::hasSyntax(const CXString& syntax) const {
    return std::ranges::find(m_entries, syntax, &Entry::first) != m_entries.end();
}

} // namespace zent
