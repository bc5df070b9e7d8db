#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string_view>
#include <vector>

namespace zent::test {

/// Builds the bytes of a small PE file that holds nothing but resources, after the PE format.
class PeImage {
public:
    explicit PeImage(bool is64Bit = true) : m_is64Bit(is64Bit) {}

    void add(std::uint32_t type, std::uint32_t id, std::uint32_t language,
             std::vector<std::uint8_t> content);
    /// A block of sixteen strings: those with the numbers (block - 1) * 16 and up.
    void addStrings(std::uint32_t block, const std::map<std::uint32_t, std::u16string_view>& texts,
                    std::uint32_t language = 0);

    std::vector<std::uint8_t> build() const;

    // Where build() puts things, in the file, for tests that break them.
    static constexpr std::uint32_t peHeader = 0x40;
    static constexpr std::uint32_t coffHeader = peHeader + 4;
    static constexpr std::uint32_t optionalHeader = coffHeader + 20;
    static constexpr std::uint32_t directorySize = 128;
    std::uint32_t directories() const { return optionalHeader + (m_is64Bit ? 112U : 96U); }
    std::uint32_t sectionHeader() const { return directories() + directorySize; }
    static constexpr std::uint32_t resources = 0x200;        // in the file
    static constexpr std::uint32_t resourceAddress = 0x1000; // in memory

private:
    using Languages = std::map<std::uint32_t, std::vector<std::uint8_t>>;
    using Numbers = std::map<std::uint32_t, Languages>;

    bool m_is64Bit;
    std::map<std::uint32_t, Numbers> m_types;
};

/// Overwrites bytes with a little-endian number.
void put16(std::vector<std::uint8_t>& bytes, std::size_t offset, std::uint32_t value);
void put32(std::vector<std::uint8_t>& bytes, std::size_t offset, std::uint32_t value);

} // namespace zent::test
