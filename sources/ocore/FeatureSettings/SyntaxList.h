#pragma once

#include <array>
#include <utility>
#include <vector>

#include "ocore/Attributes/AVTE.h"
#include "ocore/Text/CXString.h"

namespace zent {

/// The syntaxes that an attribute may have: one to three, in order of preference.
class SyntaxList {
public:
    using Entry = std::pair<CXString, AVTE>;

    /// The second is stored only if it has a keyword and a kind other than AVTE_NULL, the third
    /// only if the second was, under the same condition.
    SyntaxList(const Entry& first, const Entry& second, const Entry& third);
    /// Takes the keywords of a table's row, which are null where there is none.
    explicit SyntaxList(const std::array<const char16_t*, 3>& keywords);

    std::uint32_t getSyntaxCount() const { return static_cast<std::uint32_t>(m_entries.size()); }
    const CXString& getSyntax(std::uint32_t index) const { return m_entries[index].first; }
    AVTE getAVTE(std::uint32_t index) const { return m_entries[index].second; }
    bool hasAVTE(AVTE type) const;
    bool hasSyntax(const CXString& syntax) const;
    bool isMultiple() const { return m_multiple; }

private:
    bool m_multiple = false;
    std::vector<Entry> m_entries;
};

} // namespace zent
