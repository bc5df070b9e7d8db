#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

/// Reading of little-endian numbers out of bytes that nobody vouches for: each place is checked, in
/// 64 bits, before it is looked at.
namespace zent::platform {

using Bytes = std::span<const std::byte>;

inline std::optional<Bytes> slice(Bytes bytes, std::uint64_t offset, std::uint64_t length) {
    if (offset > bytes.size() || length > bytes.size() - offset) {
        return std::nullopt;
    }
    return bytes.subspan(static_cast<std::size_t>(offset), static_cast<std::size_t>(length));
}

template <typename T>
std::optional<T> readNumber(Bytes bytes, std::uint64_t offset) {
    const auto part = slice(bytes, offset, sizeof(T));
    if (!part) {
        return std::nullopt;
    }
    std::uint64_t value = 0;
    for (std::size_t i = sizeof(T); i-- > 0;) {
        value = value << 8 | std::to_integer<std::uint64_t>((*part)[i]);
    }
    return static_cast<T>(value);
}

inline std::optional<std::uint16_t> read16(Bytes bytes, std::uint64_t offset) {
    return readNumber<std::uint16_t>(bytes, offset);
}

inline std::optional<std::uint32_t> read32(Bytes bytes, std::uint64_t offset) {
    return readNumber<std::uint32_t>(bytes, offset);
}

} // namespace zent::platform
