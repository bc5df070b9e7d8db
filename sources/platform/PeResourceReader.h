#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/BoundedBytes.h"
#include "platform/ResourceType.h"

namespace zent::platform {

/// Finds resources in the bytes of a PE file (PE32 or PE32+), as the PE format lays them out: a
/// tree of exactly three levels, type, number and language, in the file's resource directory.
///
/// Nothing in the file is trusted: each offset is checked, in 64 bits, against the section or file
/// it must lie in before it is followed, and what doesn't fit is not found. The reader views the
/// bytes; they must outlive it and what it returns.
class PeResourceReader {
public:
    /// Nothing if the bytes are not a PE file with a resource directory.
    static std::optional<PeResourceReader> open(Bytes file);

    /// The bytes of a resource by number; of several languages the neutral one, else the first.
    /// Nothing if there is none or the file is broken there; `isListed` tells these two apart.
    std::optional<Bytes> findResource(std::uint32_t type, std::uint32_t id,
                                      bool* isListed = nullptr) const;

    /// The 16-bit units of a string table entry, little-endian, at any alignment; empty if there
    /// is none.
    Bytes findString(std::uint32_t id) const;

    /// The first image of an icon: the bytes of the icon resource that the group names first.
    std::optional<Bytes> findIcon(std::uint32_t id) const;

private:
    /// A part of the file as it lies in memory when loaded.
    struct Section {
        std::uint64_t address;
        Bytes content;
    };
    /// What an entry of a resource directory leads to.
    struct Target {
        bool isDirectory;
        std::uint64_t offset; // in the resource directory
    };

    bool readSections(Bytes file, std::uint64_t offset, std::uint32_t count);
    std::optional<Bytes> contentAt(std::uint64_t address) const;
    std::optional<Target> findEntry(std::uint64_t directory, std::uint32_t id) const;
    std::optional<Target> findLanguage(std::uint64_t directory) const;
    std::optional<Bytes> readDataEntry(std::uint64_t offset) const;

    std::vector<Section> m_sections;
    Bytes m_directory; // from the root of the resource directory to the end of its section
};

} // namespace zent::platform
