#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "platform/Surrogates.h"

namespace zent {

/// Collects a text that is being formatted, up to a limit; what goes beyond is left out, so that
/// a hostile format can't exhaust memory.
class FormatOutput {
public:
    static constexpr std::size_t limit = 1U << 20; // units

    FormatOutput() { m_text.reserve(120); } // enough for most texts

    void append(std::u16string_view text) { m_text += platform::cutText(text, room()); }
    /// Appends ASCII.
    void append(std::string_view text) {
        m_text.append(text.begin(),
                      text.begin() + static_cast<std::ptrdiff_t>(std::min(text.size(), room())));
    }
    void append(std::size_t count, char16_t unit) { m_text.append(std::min(count, room()), unit); }

    bool isFull() const { return room() == 0; }
    std::u16string_view text() const { return m_text; }

private:
    std::size_t room() const { return limit - m_text.size(); }

    std::u16string m_text;
};

} // namespace zent
