#include "ocore/Compress/CompressedBuffer.h"

#include <gmock/gmock.h>
#include <zlib.h>

#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

ByteBuffer bytesOf(const std::string& text) { return {text.data(), text.size()}; }

std::string textOf(const ByteBuffer& bytes) {
    return {static_cast<const char*>(static_cast<const void*>(bytes.data())), bytes.size()};
}

std::string deflated(const std::string& text) {
    std::string out(compressBound(static_cast<uLong>(text.size())), '\0');
    auto size = static_cast<uLongf>(out.size());
    compress(reinterpret_cast<Bytef*>(out.data()), &size,
             reinterpret_cast<const Bytef*>(text.data()), static_cast<uLong>(text.size()));
    out.resize(size);
    return out;
}

std::string expanded(const std::string& image) {
    ByteBuffer original;
    CompressedBuffer(bytesOf(image)).getOriginalData(original);
    return textOf(original);
}

using testing::EndsWith;
using testing::HasSubstr;
using FooterException = MissingOrBadCompressedBufferFooterException;

TEST(CompressedBufferTest, StoresAndExpands) {
    for (const std::string& text : {std::string("ticket"), std::string(100000, 'x')}) {
        CompressedBuffer buffer(CompressedBuffer::defaultLevel);
        buffer.store(bytesOf(text));
        const std::string image = textOf(buffer.getImage());
        EXPECT_EQ(image.substr(image.size() - 12, 5), std::string("\xFF\xFF\xFF\xFF\0", 5));
        EXPECT_THAT(image, EndsWith("COM4"));
        EXPECT_EQ(expanded(image), text);
    }
    CompressedBuffer buffer(9);
    buffer.store(nullptr, 0);
    EXPECT_EQ(textOf(buffer.getImage()), std::string("\0\0\0\x09\0\0\0\0COM4", 12));
}

TEST(CompressedBufferTest, DamageIsFound) {
    const std::string stream = deflated("ticket");
    const auto image = [&](const std::string& size) { return stream + size + "COMP"; };
    EXPECT_EQ(raised<FooterException>([] { expanded("COM4"); }),
              "CompressedBuffer::getFooterInfo(): Footer information missing (buffer is 4 bytes "
              "versus footer size of 12 or 8) OR signature bytes were invalid (no). "
              "CompressedBuffer ByteBuffer is invalid!\r\n");
    EXPECT_THAT(raised<FooterException>([] { expanded("12345678COM5"); }), HasSubstr("(yes)"));
    const Rows<std::string, const char*> rows{
        {image(std::string("\0\0\0\x05", 4)), "(Z_BUF_ERROR) from uncompress()"},
        {image(std::string("\0\0\0\x07", 4)), "size (6) doesn't match the expected size of the "
                                              "original data (7)"},
        // More than a stream of that length can hold, and a negative size.
        {image(std::string("\0\x10\0\0", 4)), "(Z_DATA_ERROR) from uncompress()"},
        {image("\xFF\xFF\xFF\xFF"), "(Z_DATA_ERROR) from uncompress()"},
        {"rubbish" + std::string("\0\0\0\x05", 4) + "COMP", "(Z_DATA_ERROR) from uncompress()"},
    };
    for (const auto& [damaged, part] : rows) {
        EXPECT_THAT(raised<CompressionException>([&bytes = damaged] { expanded(bytes); }),
                    HasSubstr(part));
    }
}

TEST(CompressedBufferTest, AStreamOfUnknownSizeIsExpandedWithinBounds) {
    const auto expand = [](const std::string& stream) {
        ByteBuffer original = bytesOf("before ");
        CompressedBuffer::uncompressBuffer(bytesOf(stream), original);
        return textOf(original);
    };
    const std::string text(50000, 'y');
    EXPECT_EQ(expand(deflated(text)), "before " + text);
    EXPECT_EQ(expand(deflated(text) + "behind"), "before " + text);
    const Rows<std::string, const char*> rows{
        {deflated(text).substr(0, 20), "(Z_BUF_ERROR)"},
        {deflated(std::string((64u << 20) + 1, '\0')), "(Z_MEM_ERROR)"}, // a bomb
        {"", "deflate()"},
    };
    for (const auto& [stream, part] : rows) {
        EXPECT_THAT(raised<CompressionException>([&, &bytes = stream] { expand(bytes); }),
                    HasSubstr(part));
    }
}

} // namespace
} // namespace zent::test
