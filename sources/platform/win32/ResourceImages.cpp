#include "platform/win32/ResourceImages.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <vector>

#include "platform/BoundedBytes.h"
#include "platform/ResourceType.h"

namespace zent::platform::win32 {

namespace {

Bytes find(const ResourceModule& resources, std::uint32_t id, std::uint32_t type) {
    auto failure = ResourceModule::Failure::none;
    const Bytes bytes = resources.findResource(id, type, failure);
    return failure == ResourceModule::Failure::none ? bytes : Bytes();
}

/// Bounds on size and depth within which drawing takes no more memory than a screen full of
/// pictures.
bool isSound(const BITMAPINFOHEADER& header) {
    constexpr LONG largestSide = 4096;
    constexpr WORD depths[] = {1, 4, 8, 16, 24, 32};
    return header.biWidth > 0 && header.biWidth <= largestSide && header.biHeight != 0 &&
           header.biHeight >= -largestSide && header.biHeight <= largestSide &&
           header.biPlanes == 1 && header.biCompression == BI_RGB &&
           std::find(std::begin(depths), std::end(depths), header.biBitCount) != std::end(depths);
}

std::uint64_t sizeOfColors(const BITMAPINFOHEADER& header) {
    constexpr WORD deepestWithPalette = 8;
    if (header.biBitCount > deepestWithPalette) {
        return std::uint64_t{header.biClrUsed} * sizeof(RGBQUAD);
    }
    const std::uint64_t count =
        header.biClrUsed != 0 ? header.biClrUsed : std::uint64_t{1} << header.biBitCount;
    return count * sizeof(RGBQUAD);
}

std::uint64_t sizeOfPixels(const BITMAPINFOHEADER& header) {
    const std::uint64_t bits = static_cast<std::uint64_t>(header.biWidth) * header.biBitCount;
    const std::uint64_t rowBytes = (bits + 31) / 32 * 4;
    return rowBytes * static_cast<std::uint64_t>(std::abs(header.biHeight));
}

/// The parts of a device-independent bitmap, found within its bytes.
struct PackedBitmap {
    std::vector<std::byte> info; // the header and the colours, aligned
    Bytes pixels;

    const BITMAPINFO* getInfo() const { return reinterpret_cast<const BITMAPINFO*>(info.data()); }
};

std::optional<PackedBitmap> unpack(Bytes bytes) {
    BITMAPINFOHEADER header = {};
    const auto start = slice(bytes, 0, sizeof(header));
    if (!start) {
        return std::nullopt;
    }
    std::copy(start->begin(), start->end(), reinterpret_cast<std::byte*>(&header));
    if (header.biSize < sizeof(header) || !isSound(header)) {
        return std::nullopt;
    }
    const std::uint64_t infoSize = header.biSize + sizeOfColors(header);
    const auto info = slice(bytes, 0, infoSize);
    const auto pixels = slice(bytes, infoSize, sizeOfPixels(header));
    if (!info || !pixels) {
        return std::nullopt;
    }
    return PackedBitmap{{info->begin(), info->end()}, *pixels};
}

/// Whether all the entries that an icon group counts are there: the system trusts their number.
bool isSoundIconGroup(Bytes group) {
    constexpr std::uint64_t countPlace = 4;
    constexpr std::uint64_t headerSize = 6;
    constexpr std::uint64_t entrySize = 14;
    const auto count = read16(group, countPlace);
    return count && *count != 0 && slice(group, headerSize, *count * entrySize);
}

/// Casts away const for functions of the system that only read.
BYTE* unprotected(Bytes bytes) {
    return const_cast<BYTE*>(reinterpret_cast<const BYTE*>(bytes.data()));
}

} // namespace

OwnBitmap createBitmap(const ResourceModule& resources, std::uint32_t id) {
    const auto bitmap = unpack(find(resources, id, resourceType::bitmap));
    if (!bitmap) {
        return nullptr;
    }
    const WindowSurface screen(nullptr);
    const BITMAPINFO* const info = bitmap->getInfo();
    return OwnBitmap(CreateDIBitmap(screen.get(), &info->bmiHeader, CBM_INIT, bitmap->pixels.data(),
                                    info, DIB_RGB_COLORS));
}

OwnIcon createIcon(const ResourceModule& resources, std::uint32_t id, int width, int height) {
    const Bytes group = find(resources, id, resourceType::iconGroup);
    if (!isSoundIconGroup(group)) {
        return nullptr;
    }
    constexpr DWORD iconVersion = 0x00030000;
    const int image =
        LookupIconIdFromDirectoryEx(unprotected(group), TRUE, width, height, LR_DEFAULTCOLOR);
    const Bytes bytes = find(resources, static_cast<std::uint32_t>(image), resourceType::icon);
    if (bytes.empty()) {
        return nullptr;
    }
    return OwnIcon(CreateIconFromResourceEx(unprotected(bytes), static_cast<DWORD>(bytes.size()),
                                            TRUE, iconVersion, width, height, LR_DEFAULTCOLOR));
}

} // namespace zent::platform::win32
