#include "ocore/Resources/ByteBuffer.h"

#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

ByteBuffer bytes(const std::string& content) { return {content.data(), content.size()}; }

TEST(ByteBuffer, Appends) {
    ByteBuffer buffer = bytes("ab");
    buffer.append("cd", 2);
    buffer.append(CXString(u"e"));
    buffer.appendNarrow(u"fg");
    buffer.appendWideTerminator();
    EXPECT_EQ(buffer, bytes(std::string("abcde\0fg\0\0", 10)));
    buffer.resize(1);
    buffer.resize(3);
    EXPECT_EQ(buffer, bytes(std::string("a\0\0", 3)));
}

TEST(ByteBuffer, TakesPartsOfItself) {
    ByteBuffer buffer = bytes("abc");
    for (int i = 0; i < 5; ++i) {
        buffer.append(buffer);
    }
    EXPECT_EQ(buffer.size(), 96U);
    buffer.append(buffer.data() + 95, 1);
    buffer.assign(buffer.data() + 94, 3);
    EXPECT_EQ(buffer, bytes("bcc"));
}

// What the values look like in bytes is tested by the registry, which stores them.
TEST(ByteBuffer, SaysHowManyBytesAreTooFew) {
    using TooFew = NotEnoughBytesForDesiredDataTypeException;
    EXPECT_EQ(raised<TooFew>([] { bytes("abc").getAsLongValue(); }),
              "ByteBuffer::getAsLongValue(): Cannot convert to the desired data type because the "
              "size of the source buffer is too small (3 bytes)! It needs to be at least 4 "
              "bytes.\r\n");
    EXPECT_EQ(raised<TooFew>([] { ByteBuffer().getAsBoolValue(); }),
              "ByteBuffer::getAsBoolValue(): Cannot convert to the desired data type because the "
              "size of the source buffer is too small (0 bytes)! It needs to be at least 1 "
              "bytes.\r\n");
}

} // namespace
} // namespace zent::test
