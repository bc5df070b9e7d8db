#pragma once

#include <array>
#include <string_view>

#include "ocore/Text/CXString.h"

namespace zent {

/// The text without white space at its ends.
CXString trimmedText(std::u16string_view text);

/// Short trimmed texts that came by lately, so that equal ones share their block: few names,
/// keywords and numbers make up most of a ticket. A new text takes the place of one that happens to
/// have the same key. For one walk of one document, whose texts it refers to.
class SharedTexts {
public:
    const CXString& trimmed(std::u16string_view text);

private:
    struct Entry {
        std::u16string_view text; // as it stands in the document
        CXString trimmed;
    };
    std::array<Entry, 256> m_entries;
};

} // namespace zent
