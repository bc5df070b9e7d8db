#pragma once

// A fuzzer's bytes as the arguments of calls. After the end of the input all bytes are zero.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace zent::fuzz {

/// Makes a unit of a byte: ASCII stays as it is, and other bytes give units in which 16-bit text
/// has its pitfalls.
inline char16_t unitOf(std::uint8_t byte) {
    constexpr std::array<char16_t, 4> bases{0x0080, 0xD800, 0xDC00, 0xFFE0};
    return static_cast<char16_t>(byte < 0x80 ? byte : bases[byte / 32 - 4] + byte % 32);
}

class FuzzInput {
public:
    FuzzInput(const std::uint8_t* data, std::size_t size)
        : m_data(data), m_size(size), m_rest(size) {}

    bool isAtEnd() const { return m_rest == 0; }
    /// How many bytes have been taken.
    std::size_t getPosition() const { return m_size - m_rest; }

    std::uint8_t takeByte() {
        if (m_rest == 0) {
            return 0;
        }
        --m_rest;
        return *m_data++;
    }

    /// A small number in one byte; from 0xF0 on two follow it, and from 0xF8 on four.
    std::uint32_t takeNumber() {
        const std::uint8_t first = takeByte();
        if (first < 0xF0) {
            return first;
        }
        std::uint32_t number = 0;
        const std::uint32_t bytes = first < 0xF8 ? 2 : 4;
        for (std::uint32_t i = 0; i < bytes; ++i) {
            number |= static_cast<std::uint32_t>(takeByte()) << 8 * i;
        }
        return number;
    }
    std::int32_t takeSigned() { return static_cast<std::int32_t>(takeNumber()); }

    /// Takes a number of bytes, and that many bytes.
    std::string takeBytes() {
        const std::size_t size = std::min<std::size_t>(takeNumber(), m_rest);
        std::string bytes(m_data, m_data + size);
        m_data += size;
        m_rest -= size;
        return bytes;
    }

    /// Takes them as text of the interface, which ends before the first zero.
    template <typename Unit>
    std::basic_string<Unit> takeText() {
        std::basic_string<Unit> text;
        for (const char byte : takeBytes()) {
            text += static_cast<Unit>(unitOf(static_cast<std::uint8_t>(byte)));
        }
        text.resize(std::min(text.find(Unit{}), text.size()));
        return text;
    }

private:
    const std::uint8_t* m_data;
    std::size_t m_size;
    std::size_t m_rest;
};

} // namespace zent::fuzz
