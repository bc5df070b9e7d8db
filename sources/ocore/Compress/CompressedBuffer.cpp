#include "ocore/Compress/CompressedBuffer.h"

#include <array>
#include <cstring>

#include <zlib.h>

#include "ocore/Faults/Exceptions.h"

namespace zent {

namespace {

constexpr std::size_t signatureSize = 4;
constexpr std::size_t footerSize = 12;
constexpr std::size_t oldFooterSize = 8;
constexpr char signature[] = "COM4";
constexpr char oldSignature[] = "COMP";

constexpr std::size_t maximumOriginalSize = 64u << 20;
// Deflate makes at most about 1,032 bytes of one; a footer that claims more is damaged, or forged
// to exhaust memory.
constexpr std::uint64_t maximumExpansion = 1040;
constexpr std::uint64_t expansionAllowance = 64;

/// The name of a zlib result.
CXString nameOf(int result) {
    switch (result) {
    case Z_OK:
        return u"Z_OK";
    case Z_STREAM_END:
        return u"Z_STREAM_END";
    case Z_NEED_DICT:
        return u"Z_NEED_DICT";
    case Z_ERRNO:
        return u"Z_ERRNO";
    case Z_STREAM_ERROR:
        return u"Z_STREAM_ERROR";
    case Z_DATA_ERROR:
        return u"Z_DATA_ERROR";
    case Z_MEM_ERROR:
        return u"Z_MEM_ERROR";
    case Z_BUF_ERROR:
        return u"Z_BUF_ERROR";
    case Z_VERSION_ERROR:
        return u"Z_VERSION_ERROR";
    default:
        return CXString::Format(u"<Unrecognized ZLIB Return Code %d>", result);
    }
}

const Bytef* asZlib(const std::byte* bytes) { return reinterpret_cast<const Bytef*>(bytes); }
Bytef* asZlib(std::byte* bytes) { return reinterpret_cast<Bytef*>(bytes); }

std::uint32_t readBigEndian(const std::byte* bytes) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < sizeof(number); ++i) {
        number = number << 8 | std::to_integer<std::uint32_t>(bytes[i]);
    }
    return number;
}

void appendBigEndian(ByteBuffer& buffer, std::uint32_t number) {
    const std::array<std::byte, 4> bytes{
        static_cast<std::byte>(number >> 24), static_cast<std::byte>(number >> 16),
        static_cast<std::byte>(number >> 8), static_cast<std::byte>(number)};
    buffer.append(bytes.data(), bytes.size());
}

/// A zlib stream that is expanded piece by piece.
class Inflater {
public:
    explicit Inflater(const ByteBuffer& input) {
        m_stream.next_in = const_cast<Bytef*>(asZlib(input.data())); // zlib doesn't write there
        m_stream.avail_in = static_cast<uInt>(input.size());
        const int result = inflateInit(&m_stream);
        if (result != Z_OK) {
            Raise<CompressionException>()("CompressedBuffer::uncompressBuffer(): ZLIB returned an "
                                          "error (%s) from inflateInit()!\r\n",
                                          nameOf(result));
        }
    }
    ~Inflater() {
        if (!m_ended) {
            inflateEnd(&m_stream);
        }
    }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;

    /// Appends what the next round expands; true at the end of the stream.
    bool expandInto(ByteBuffer& output) {
        std::array<std::byte, 16384> window{};
        m_stream.next_out = asZlib(window.data());
        m_stream.avail_out = static_cast<uInt>(window.size());
        const int result = inflate(&m_stream, Z_NO_FLUSH);
        const std::size_t made = window.size() - m_stream.avail_out;
        const bool isTooLarge = output.size() + made > maximumOriginalSize;
        // A stream that is cut off makes no progress at its end: Z_BUF_ERROR.
        if ((result != Z_OK && result != Z_STREAM_END) || isTooLarge) {
            Raise<CompressionException>()("CompressedBuffer::uncompressBuffer(): ZLIB returned an "
                                          "error (%s) from deflate()!\r\n",
                                          nameOf(isTooLarge ? Z_MEM_ERROR : result));
        }
        output.append(window.data(), made);
        return result == Z_STREAM_END;
    }

    void end() {
        m_ended = true;
        const int result = inflateEnd(&m_stream);
        if (result != Z_OK) {
            Raise<CompressionException>()("CompressedBuffer::uncompressBuffer(): ZLIB returned an "
                                          "error (%s) from inflateEnd()!\r\n",
                                          nameOf(result));
        }
    }

private:
    z_stream m_stream{};
    bool m_ended = false;
};

} // namespace

CompressedBuffer::CompressedBuffer(std::int32_t level) : m_level(level) { writeFooter(); }

CompressedBuffer::CompressedBuffer(const ByteBuffer& image)
    : m_image(image), m_level(defaultLevel) {
    readFooter();
    writeFooter();
}

void CompressedBuffer::readFooter() {
    const std::size_t size = m_image.size();
    const std::byte* const end = m_image.data() + size;
    const auto endsWith = [&](const char* text) {
        return std::memcmp(end - signatureSize, text, signatureSize) == 0;
    };
    const bool isLongEnough = size >= oldFooterSize;
    if (!isLongEnough || (!endsWith(signature) && !endsWith(oldSignature))) {
        Raise<MissingOrBadCompressedBufferFooterException>()(
            "CompressedBuffer::getFooterInfo(): Footer information missing (buffer is %ld bytes "
            "versus footer size of %ld or %ld) OR signature bytes were invalid (%s). "
            "CompressedBuffer ByteBuffer is invalid!\r\n",
            size, footerSize, oldFooterSize, isLongEnough ? u"yes" : u"no");
    }
    const bool hasLevel = endsWith(signature) && size >= footerSize;
    m_originalSize = static_cast<std::int32_t>(readBigEndian(end - oldFooterSize));
    if (hasLevel) {
        m_level = static_cast<std::int32_t>(readBigEndian(end - footerSize));
    }
    m_image.resize(size - (hasLevel ? footerSize : oldFooterSize));
}

void CompressedBuffer::writeFooter() {
    appendBigEndian(m_image, static_cast<std::uint32_t>(m_level));
    appendBigEndian(m_image, static_cast<std::uint32_t>(m_originalSize));
    m_image.append(signature, signatureSize);
}

void CompressedBuffer::store(const void* bytes, std::size_t length) {
    if (length > maximumOriginalSize) {
        Raise<CompressionException>()("CompressedBuffer::store(): %lu bytes are more than can be "
                                      "expanded again!\r\n",
                                      length);
    }
    ByteBuffer compressed;
    if (length != 0) {
        compressed.resize(length + length / 100 + 13);
        auto size = static_cast<uLongf>(compressed.size());
        const int result =
            compress2(asZlib(compressed.data()), &size, static_cast<const Bytef*>(bytes),
                      static_cast<uLong>(length), m_level);
        if (result != Z_OK) {
            Raise<CompressionException>()(
                "CompressedBuffer::store(): ZLIB returned an error (%s) from compress()!\r\n",
                nameOf(result));
        }
        compressed.resize(size);
    }
    m_image.swap(compressed);
    m_originalSize = static_cast<std::int32_t>(length);
    writeFooter();
}

void CompressedBuffer::getOriginalData(ByteBuffer& original) const {
    original.clear();
    if (m_originalSize == 0) {
        return;
    }
    const std::uint64_t claimed = static_cast<std::uint32_t>(m_originalSize);
    const bool isPossible = claimed <= maximumOriginalSize &&
                            claimed <= m_image.size() * maximumExpansion + expansionAllowance;
    auto size = static_cast<uLongf>(claimed);
    int result = Z_DATA_ERROR;
    if (isPossible) {
        original.resize(static_cast<std::size_t>(claimed));
        // The whole image is the input: zlib stops at the end of its stream, before the footer.
        result = uncompress(asZlib(original.data()), &size, asZlib(m_image.data()),
                            static_cast<uLong>(m_image.size()));
    }
    if (result != Z_OK) {
        original.clear();
        Raise<CompressionException>()(
            "CompressedBuffer::getOriginalData(): ZLIB returned an error (%s) from "
            "uncompress()!\r\n",
            nameOf(result));
    }
    if (size != claimed) {
        original.clear();
        Raise<CompressionException>()(
            "CompressedBuffer::getOriginalData(): Uncompressed data size (%ld) doesn't match the "
            "expected size of the original data (%ld)!\r\n",
            size, m_originalSize);
    }
}

void CompressedBuffer::uncompressBuffer(const ByteBuffer& stream, ByteBuffer& original) {
    ByteBuffer expanded;
    Inflater inflater(stream);
    while (!inflater.expandInto(expanded)) {
    }
    inflater.end();
    original.append(expanded);
}

} // namespace zent
