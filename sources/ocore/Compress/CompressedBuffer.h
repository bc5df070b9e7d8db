#pragma once

#include <cstdint>

#include "ocore/Resources/ByteBuffer.h"

namespace zent {

/// Bytes kept as a zlib stream (RFC 1950) with a footer of twelve bytes: compression level and
/// original size, big-endian, and the signature "COM4". An older footer of eight bytes, without the
/// level and with the signature "COMP", is read and replaced.
///
/// Damage raises MissingOrBadCompressedBufferFooterException or CompressionException. A footer that
/// claims more than a stream of its length can hold is damage too, before anything is allocated.
class CompressedBuffer {
public:
    static constexpr std::int32_t defaultLevel = -1;

    /// Makes an empty buffer, of which later content is compressed at a level.
    explicit CompressedBuffer(std::int32_t level);
    /// Takes a compressed image with its footer.
    explicit CompressedBuffer(const ByteBuffer& image);

    /// Compresses bytes, at most 64 MiB, which replace the content.
    void store(const void* bytes, std::size_t length);
    void store(const ByteBuffer& bytes) { store(bytes.data(), bytes.size()); }
    /// Expands the content.
    void getOriginalData(ByteBuffer& original) const;

    std::int32_t getOriginalSize() const { return m_originalSize; }
    const ByteBuffer& getImage() const { return m_image; }

    /// Expands a zlib stream of unknown size, up to 64 MiB; the result is appended.
    static void uncompressBuffer(const ByteBuffer& stream, ByteBuffer& original);

private:
    void readFooter();
    void writeFooter();

    ByteBuffer m_image;
    std::int32_t m_originalSize = 0;
    std::int32_t m_level;
};

} // namespace zent
