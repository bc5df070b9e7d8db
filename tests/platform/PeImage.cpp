#include "platform/PeImage.h"

#include <utility>

namespace zent::test {

namespace {

using Bytes = std::vector<std::uint8_t>;
constexpr std::uint32_t toDirectory = 0x80000000;

void append16(Bytes& bytes, std::uint32_t value) {
    bytes.resize(bytes.size() + 2);
    put16(bytes, bytes.size() - 2, value);
}

std::uint32_t sizeOf(const Bytes& bytes) { return static_cast<std::uint32_t>(bytes.size()); }

/// Adds a directory whose entries point nowhere yet; returns where its first entry starts.
template <typename Entries>
std::uint32_t addDirectory(Bytes& section, const Entries& entries) {
    const std::uint32_t start = sizeOf(section);
    const auto count = static_cast<std::uint32_t>(entries.size());
    section.resize(start + 16 + count * 8);
    put16(section, start + 14, count);
    std::uint32_t entry = start + 16;
    for (const auto& [number, target] : entries) {
        put32(section, entry, number);
        entry += 8;
    }
    return start + 16;
}

} // namespace

void put16(Bytes& bytes, std::size_t offset, std::uint32_t value) {
    bytes.at(offset) = static_cast<std::uint8_t>(value);
    bytes.at(offset + 1) = static_cast<std::uint8_t>(value >> 8);
}

void put32(Bytes& bytes, std::size_t offset, std::uint32_t value) {
    put16(bytes, offset, value & 0xFFFF);
    put16(bytes, offset + 2, value >> 16);
}

void PeImage::add(std::uint32_t type, std::uint32_t id, std::uint32_t language, Bytes content) {
    m_types[type][id][language] = std::move(content);
}

void PeImage::addStrings(std::uint32_t block,
                         const std::map<std::uint32_t, std::u16string_view>& texts,
                         std::uint32_t language) {
    Bytes content;
    for (std::uint32_t i = 0; i < 16; ++i) {
        const auto found = texts.find((block - 1) * 16 + i);
        const std::u16string_view text = found == texts.end() ? u"" : found->second;
        append16(content, static_cast<std::uint32_t>(text.size()));
        for (const char16_t unit : text) {
            append16(content, unit);
        }
    }
    add(6, block, language, std::move(content));
}

Bytes PeImage::build() const {
    Bytes section;
    const auto point = [&section](std::uint32_t entry, std::uint32_t target) {
        put32(section, entry + 4, target);
    };
    std::uint32_t typeEntry = addDirectory(section, m_types);
    for (const auto& [type, numbers] : m_types) {
        point(typeEntry, toDirectory | sizeOf(section));
        typeEntry += 8;
        std::uint32_t numberEntry = addDirectory(section, numbers);
        for (const auto& [id, languages] : numbers) {
            point(numberEntry, toDirectory | sizeOf(section));
            numberEntry += 8;
            std::uint32_t languageEntry = addDirectory(section, languages);
            for (const auto& [language, content] : languages) {
                const std::uint32_t data = sizeOf(section);
                point(languageEntry, data);
                languageEntry += 8;
                section.resize(data + 16);
                put32(section, data, resourceAddress + data + 16);
                put32(section, data + 4, sizeOf(content));
                section.insert(section.end(), content.begin(), content.end());
                section.resize((section.size() + 3) & ~std::size_t{3});
            }
        }
    }

    Bytes file(resources);
    put16(file, 0, 0x5A4D);
    put32(file, 0x3C, peHeader);
    put32(file, peHeader, 0x4550);
    put16(file, coffHeader, m_is64Bit ? 0x8664 : 0x14C);
    put16(file, coffHeader + 2, 1); // sections
    put16(file, coffHeader + 16, directories() + directorySize - optionalHeader);
    put16(file, optionalHeader, m_is64Bit ? 0x20B : 0x10B);
    put32(file, directories() - 4, 16); // count of directories
    put32(file, directories() + 16, resourceAddress);
    put32(file, directories() + 20, sizeOf(section));
    put32(file, sectionHeader() + 8, sizeOf(section));
    put32(file, sectionHeader() + 12, resourceAddress);
    put32(file, sectionHeader() + 16, sizeOf(section));
    put32(file, sectionHeader() + 20, resources);
    file.insert(file.end(), section.begin(), section.end());
    return file;
}

} // namespace zent::test
