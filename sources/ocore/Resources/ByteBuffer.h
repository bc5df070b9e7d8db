#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "ocore/Text/CXString.h"

namespace zent {

/// The one container of raw bytes: owned, growable (by doubling or what is needed). A never-filled
/// buffer has size 0 and a null data pointer.
class ByteBuffer {
public:
    ByteBuffer() = default;
    ByteBuffer(const void* data, std::size_t length);
    explicit ByteBuffer(std::vector<std::byte> bytes) : m_bytes(std::move(bytes)) {}
    /// Makes one byte, 0 or 1.
    static ByteBuffer fromBool(bool value);
    /// Makes four bytes, little-endian.
    static ByteBuffer fromLong(std::int32_t value);
    /// Takes the 16-bit units, little-endian, without a terminator.
    static ByteBuffer fromString(const CXString& text);

    const std::byte* data() const { return m_bytes.data(); }
    std::byte* data() { return m_bytes.data(); }
    std::size_t size() const { return m_bytes.size(); }
    bool isEmpty() const { return m_bytes.empty(); }
    std::span<const std::byte> bytes() const { return m_bytes; }

    /// Replaces the content by a copy; a null pointer with length 0 empties.
    void assign(const void* data, std::size_t length);
    void append(const void* data, std::size_t length);
    void append(const ByteBuffer& other) { append(other.data(), other.size()); }
    /// Appends the 16-bit units.
    void append(const CXString& text);
    /// Sets the size; new bytes are zero.
    void resize(std::size_t size) { m_bytes.resize(size); }
    /// Frees the bytes.
    void clear();
    void swap(ByteBuffer& other) noexcept { m_bytes.swap(other.m_bytes); }

    /// The first four bytes, little-endian; raises NotEnoughBytesForDesiredDataTypeException.
    std::int32_t getAsLongValue() const;
    /// Whether the first byte isn't zero; raises the same on an empty buffer.
    bool getAsBoolValue() const;
    /// The content as 16-bit units, an odd last byte left out.
    CXString getAsString() const;

    bool operator==(const ByteBuffer& other) const = default;

private:
    std::vector<std::byte> m_bytes;
};

} // namespace zent
