#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "ocore/Text/CXString.h"

namespace zent::ajt {

/// A ticket stream as it grows.
class Output {
public:
    /// Writes bytes as they are: ASCII, which is the same in every code page, or text that was
    /// converted.
    Output& operator<<(std::string_view bytes) {
        m_bytes.append(bytes);
        return *this;
    }
    /// Writes text, which it converts to the ANSI code page.
    Output& operator<<(const CXString& text) {
        m_bytes.append(text.toNarrow());
        return *this;
    }
    /// Writes a number in decimal digits.
    Output& operator<<(std::int32_t number);

    const std::string& bytes() const { return m_bytes; }

private:
    std::string m_bytes; // grows by small pieces at less cost than a ByteBuffer
};

/// Shifts and sizes are written in whole millimetres, of which the rest is cut off.
constexpr std::int32_t inMillimetres(std::int32_t hundredths) { return hundredths / 100; }

} // namespace zent::ajt
