#pragma once

#include "ocore/Text/CXString.h"

namespace zent {

/// The name of an attribute: a text that is never empty. Building or assigning one from empty text
/// raises InvalidAttributeIdException; copies aren't checked again.
class AttrID {
public:
    explicit AttrID(const CXString& text) : m_text(text) { validateTheID(); }
    explicit AttrID(const char16_t* text) : m_text(text) { validateTheID(); }
    AttrID& operator=(const CXString& text);

    const CXString& getText() const { return m_text; }
    operator CXString() const { return m_text; }

    bool operator==(const AttrID& other) const = default;
    /// Compares the texts by the codes of their characters.
    std::strong_ordering operator<=>(const AttrID& other) const { return m_text <=> other.m_text; }

private:
    void validateTheID() const {
        if (m_text.isEmpty()) {
            raiseEmpty();
        }
    }
    [[noreturn]] static void raiseEmpty();

    CXString m_text;
};

} // namespace zent
