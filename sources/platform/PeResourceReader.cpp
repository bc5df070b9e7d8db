#include "platform/PeResourceReader.h"

#include <algorithm>

namespace zent::platform {

namespace {

/// The offsets in the file of what is needed of the headers.
struct Headers {
    std::uint64_t sectionTable;
    std::uint32_t sectionCount;
    std::uint64_t resourceAddress;
};

std::optional<Headers> readHeaders(Bytes file) {
    constexpr std::uint16_t dosSignature = 0x5A4D;
    constexpr std::uint64_t peOffsetPlace = 0x3C;
    constexpr std::uint32_t peSignature = 0x00004550;
    if (read16(file, 0) != dosSignature) {
        return std::nullopt;
    }
    const auto start = read32(file, peOffsetPlace);
    if (!start || read32(file, *start) != peSignature) {
        return std::nullopt;
    }
    const std::uint64_t coff = std::uint64_t{*start} + 4;
    const std::uint64_t optional = coff + 20;
    const auto sectionCount = read16(file, coff + 2);
    const auto optionalSize = read16(file, coff + 16);
    const auto magic = read16(file, optional);
    if (!sectionCount || !optionalSize || !magic) {
        return std::nullopt;
    }
    constexpr std::uint16_t pe32 = 0x10B;
    constexpr std::uint16_t pe32Plus = 0x20B;
    if (*magic != pe32 && *magic != pe32Plus) {
        return std::nullopt;
    }
    constexpr std::uint64_t resourceIndex = 2;
    const std::uint64_t directories = *magic == pe32 ? 96 : 112;
    const std::uint64_t place = directories + resourceIndex * 8;
    const auto directoryCount = read32(file, optional + directories - 4);
    const auto address = read32(file, optional + place);
    if (!directoryCount || *directoryCount <= resourceIndex || place + 8 > *optionalSize ||
        !address || *address == 0) {
        return std::nullopt;
    }
    return Headers{optional + *optionalSize, *sectionCount, *address};
}

constexpr std::uint32_t highBit = 0x80000000;
constexpr std::uint64_t directoryHeaderSize = 16;
constexpr std::uint64_t directoryEntrySize = 8;

} // namespace

std::optional<PeResourceReader> PeResourceReader::open(Bytes file) {
    const auto headers = readHeaders(file);
    PeResourceReader reader;
    if (!headers || !reader.readSections(file, headers->sectionTable, headers->sectionCount)) {
        return std::nullopt;
    }
    const auto directory = reader.contentAt(headers->resourceAddress);
    if (!directory || directory->size() < directoryHeaderSize) {
        return std::nullopt;
    }
    reader.m_directory = *directory;
    return reader;
}

bool PeResourceReader::readSections(Bytes file, std::uint64_t offset, std::uint32_t count) {
    constexpr std::uint64_t headerSize = 40;
    const auto table = slice(file, offset, headerSize * count);
    if (!table) {
        return false;
    }
    for (std::uint32_t i = 0; i < count; ++i) {
        const Bytes header = table->subspan(i * headerSize, headerSize);
        const std::uint64_t memorySize = *read32(header, 8);
        const std::uint64_t address = *read32(header, 12);
        const std::uint64_t fileSize = *read32(header, 16);
        const std::uint64_t fileOffset = *read32(header, 20);
        // What a section has in memory beyond its part of the file is zeros, and no resource lies
        // there.
        const std::uint64_t size = memorySize == 0 ? fileSize : std::min(memorySize, fileSize);
        const auto content = slice(file, fileOffset, size);
        if (!content) {
            return false;
        }
        m_sections.push_back({address, *content});
    }
    return true;
}

/// The bytes that the file holds from an address on, up to the end of the section.
std::optional<Bytes> PeResourceReader::contentAt(std::uint64_t address) const {
    for (const Section& section : m_sections) {
        if (address >= section.address && address - section.address < section.content.size()) {
            return section.content.subspan(static_cast<std::size_t>(address - section.address));
        }
    }
    return std::nullopt;
}

std::optional<PeResourceReader::Target> PeResourceReader::findEntry(std::uint64_t directory,
                                                                    std::uint32_t id) const {
    const auto namedCount = read16(m_directory, directory + 12);
    const auto numberedCount = read16(m_directory, directory + 14);
    if (!namedCount || !numberedCount) {
        return std::nullopt;
    }
    const std::uint64_t first = directory + directoryHeaderSize + *namedCount * directoryEntrySize;
    const auto entries = slice(m_directory, first, *numberedCount * directoryEntrySize);
    if (!entries) {
        return std::nullopt;
    }
    for (std::uint64_t place = 0; place < entries->size(); place += directoryEntrySize) {
        if (read32(*entries, place) == id) {
            const std::uint32_t target = *read32(*entries, place + 4);
            return Target{(target & highBit) != 0, target & ~highBit};
        }
    }
    return std::nullopt;
}

std::optional<PeResourceReader::Target>
PeResourceReader::findLanguage(std::uint64_t directory) const {
    constexpr std::uint32_t neutral = 0;
    if (const auto target = findEntry(directory, neutral)) {
        return target;
    }
    const auto firstLanguage = read32(m_directory, directory + directoryHeaderSize);
    return firstLanguage ? findEntry(directory, *firstLanguage) : std::nullopt;
}

std::optional<Bytes> PeResourceReader::readDataEntry(std::uint64_t offset) const {
    const auto address = read32(m_directory, offset);
    const auto size = read32(m_directory, offset + 4);
    if (!address || !size) {
        return std::nullopt;
    }
    const auto content = contentAt(*address);
    return content ? slice(*content, 0, *size) : std::nullopt;
}

std::optional<Bytes> PeResourceReader::findResource(std::uint32_t type, std::uint32_t id,
                                                    bool* isListed) const {
    if (isListed != nullptr) {
        *isListed = false;
    }
    const auto numbers = findEntry(0, type);
    const auto languages =
        numbers && numbers->isDirectory ? findEntry(numbers->offset, id) : std::nullopt;
    const auto data =
        languages && languages->isDirectory ? findLanguage(languages->offset) : std::nullopt;
    if (!data || data->isDirectory) {
        return std::nullopt;
    }
    if (isListed != nullptr) {
        *isListed = true;
    }
    return readDataEntry(data->offset);
}

Bytes PeResourceReader::findString(std::uint32_t id) const {
    // A block holds sixteen strings, each a count of units and the units; a count of zero stands
    // for no string.
    constexpr std::uint32_t blockSize = 16;
    const auto block = findResource(resourceType::stringBlock, id / blockSize + 1);
    if (!block) {
        return {};
    }
    std::uint64_t offset = 0;
    for (std::uint32_t i = id % blockSize; i > 0; --i) {
        const auto length = read16(*block, offset);
        if (!length) {
            return {};
        }
        offset += 2 + std::uint64_t{*length} * 2;
    }
    const auto length = read16(*block, offset);
    const auto text = length ? slice(*block, offset + 2, std::uint64_t{*length} * 2) : std::nullopt;
    return text.value_or(Bytes());
}

std::optional<Bytes> PeResourceReader::findIcon(std::uint32_t id) const {
    constexpr std::uint64_t firstImageNumber = 6 + 12;
    const auto group = findResource(resourceType::iconGroup, id);
    const auto image = group ? read16(*group, firstImageNumber) : std::nullopt;
    return image ? findResource(resourceType::icon, *image) : std::nullopt;
}

} // namespace zent::platform
