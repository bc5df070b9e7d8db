#include "platform/qt/Pictures.h"

#include <algorithm>
#include <optional>

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QImageReader>
#include <QtEndian>

#include "platform/BoundedBytes.h"
#include "platform/ResourceType.h"

namespace zent::platform::qt {

namespace {

constexpr int largestBitmap = 4096; // pixels, across or down
constexpr int largestIcon = 256;

void append16(QByteArray& bytes, std::uint16_t value) {
    const std::uint16_t number = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

void append32(QByteArray& bytes, std::uint32_t value) {
    const std::uint32_t number = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

void append(QByteArray& bytes, Bytes more) {
    bytes.append(reinterpret_cast<const char*>(more.data()), static_cast<qsizetype>(more.size()));
}

/// The next image of a reader; empty if it is larger than any sensible picture.
QImage readImage(QImageReader& reader, int largest) {
    const QSize size = reader.size();
    return std::max(size.width(), size.height()) <= largest ? reader.read() : QImage();
}

/// The size of the masks and colours between a bitmap's header and its pixels.
std::optional<std::uint64_t> sizeOfColours(Bytes bitmap, std::uint32_t headerSize) {
    constexpr std::uint32_t coreHeaderSize = 12;
    constexpr std::uint32_t plainHeaderSize = 40;
    constexpr std::uint32_t hasMasks = 3; // BI_BITFIELDS
    constexpr std::uint64_t masksSize = 12;
    const bool isCore = headerSize == coreHeaderSize;
    const auto bits = read16(bitmap, isCore ? 10 : 14);
    const auto compression = isCore ? 0 : read32(bitmap, 16);
    const auto used = isCore ? 0 : read32(bitmap, 32);
    if (!bits || !compression || !used) {
        return std::nullopt;
    }
    const std::uint64_t most = *bits <= 8 ? 1U << *bits : 0;
    const std::uint64_t colours = *used != 0 ? *used : most;
    const bool masksFollow = headerSize == plainHeaderSize && *compression == hasMasks;
    return colours * (isCore ? 3 : 4) + (masksFollow ? masksSize : 0);
}

/// A bitmap resource is a bitmap file without its first header.
QImage readBitmap(Bytes bitmap) {
    constexpr std::uint32_t fileHeaderSize = 14;
    const auto headerSize = read32(bitmap, 0);
    const auto coloursSize = headerSize ? sizeOfColours(bitmap, *headerSize) : std::nullopt;
    if (!coloursSize || !slice(bitmap, *headerSize, *coloursSize)) {
        return {};
    }
    QByteArray file("BM");
    append32(file, static_cast<std::uint32_t>(fileHeaderSize + bitmap.size()));
    append32(file, 0);
    append32(file, static_cast<std::uint32_t>(fileHeaderSize + *headerSize + *coloursSize));
    append(file, bitmap);
    QBuffer buffer(&file);
    QImageReader reader(&buffer, "bmp");
    return readImage(reader, largestBitmap);
}

QImage withoutBackground(const QImage& image) {
    if (image.isNull()) {
        return image;
    }
    QImage result = image.convertToFormat(QImage::Format_ARGB32);
    const QRgb background = result.pixel(0, 0);
    for (int y = 0; y < result.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(result.scanLine(y));
        std::replace(line, line + result.width(), background, qRgba(0, 0, 0, 0));
    }
    return result;
}

Bytes findResource(const ResourceModule& resources, std::uint32_t id, std::uint32_t type) {
    ResourceModule::Failure failure = {};
    return resources.findResource(id, type, failure);
}

/// One image of an icon. A group can name the same one often, so a large one is left out.
Bytes findIconImage(const ResourceModule& resources, std::uint32_t id) {
    constexpr std::size_t largestImage = std::size_t{1024} * 1024;
    const Bytes image = findResource(resources, id, resourceType::icon);
    return image.size() <= largestImage ? image : Bytes();
}

/// An icon file made of an icon resource, which is a group that names its images. The directory of
/// the file is that of the group, with places of images for their numbers.
QByteArray makeIconFile(const ResourceModule& resources, Bytes group) {
    constexpr std::uint64_t headerSize = 6;
    constexpr std::uint64_t entrySize = 14;
    constexpr std::uint64_t imageNumber = 12;
    constexpr std::uint64_t imageSize = 8;
    constexpr std::uint16_t mostImages = 64;
    const std::uint16_t count = std::min(read16(group, 4).value_or(0), mostImages);
    const auto entries = slice(group, headerSize, count * entrySize);
    if (!entries) {
        return {};
    }
    QByteArray file;
    append16(file, 0);
    append16(file, 1);
    append16(file, count);
    QByteArray images;
    const std::uint32_t imagesStart = static_cast<std::uint32_t>(headerSize) + count * 16U;
    for (std::uint16_t i = 0; i < count; ++i) {
        const Bytes entry = entries->subspan(i * entrySize, entrySize);
        const Bytes image = findIconImage(resources, *read16(entry, imageNumber));
        append(file, entry.first(imageSize));
        append32(file, static_cast<std::uint32_t>(image.size()));
        append32(file, imagesStart + static_cast<std::uint32_t>(images.size()));
        append(images, image);
    }
    return file + images;
}

} // namespace

QPixmap Pictures::bitmap(std::uint32_t id) {
    const auto known = m_bitmaps.constFind(id);
    if (known != m_bitmaps.constEnd()) {
        return *known;
    }
    const QImage image = readBitmap(findResource(m_resources, id, resourceType::bitmap));
    return *m_bitmaps.insert(id, QPixmap::fromImage(withoutBackground(image)));
}

QIcon Pictures::icon(std::uint32_t id) const {
    QByteArray file =
        makeIconFile(m_resources, findResource(m_resources, id, resourceType::iconGroup));
    QBuffer buffer(&file);
    QImageReader reader(&buffer, "ico");
    QIcon icon;
    for (int i = 0; i < reader.imageCount(); ++i) {
        reader.jumpToImage(i);
        icon.addPixmap(QPixmap::fromImage(readImage(reader, largestIcon)));
    }
    return icon;
}

} // namespace zent::platform::qt
