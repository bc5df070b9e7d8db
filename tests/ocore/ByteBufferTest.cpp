#include "ocore/ByteBuffer.h"

#include <string>

#include <gtest/gtest.h>

#include "PrintText.h"
#include "support/Raised.h"

namespace zent {
namespace {

ByteBuffer bytes(const std::string& content) { return {content.data(), content.size()}; }

TEST(ByteBuffer, NeverFilledHasNoData) {
    ByteBuffer filled = bytes("x");
    filled.clear();
    ByteBuffer assigned = bytes("x");
    assigned.assign(nullptr, 0);
    for (const ByteBuffer& buffer :
         {ByteBuffer(), ByteBuffer(nullptr, 0), ByteBuffer::fromString(u""), filled, assigned}) {
        EXPECT_TRUE(buffer.isEmpty());
        EXPECT_EQ(buffer.data(), nullptr);
    }
}

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

TEST(ByteBuffer, HoldsValues) {
    EXPECT_EQ(ByteBuffer::fromBool(true), bytes("\x01"));
    EXPECT_EQ(ByteBuffer::fromLong(-2), bytes("\xFE\xFF\xFF\xFF"));
    EXPECT_EQ(ByteBuffer::fromString(u"A\u20AC"), bytes(std::string("A\0\xAC\x20", 4)));
    EXPECT_EQ(bytes("\x04\x03\x02\x81z").getAsLongValue(), -0x7EFDFCFC);
    EXPECT_TRUE(bytes("\x80").getAsBoolValue());
    EXPECT_FALSE(bytes(std::string("\0\x01", 2)).getAsBoolValue());
    EXPECT_EQ(bytes(std::string("a\0b\0c", 5)).getAsString(), u"ab");
    EXPECT_TRUE(ByteBuffer().getAsString().isEmpty());
    using TooFew = NotEnoughBytesForDesiredDataTypeException;
    EXPECT_EQ(test::raised<TooFew>([] { bytes("abc").getAsLongValue(); }),
              "ByteBuffer::getAsLongValue(): Cannot convert to the desired data type because the "
              "size of the source buffer is too small (3 bytes)! It needs to be at least 4 "
              "bytes.\r\n");
    EXPECT_EQ(test::raised<TooFew>([] { ByteBuffer().getAsBoolValue(); }),
              "ByteBuffer::getAsBoolValue(): Cannot convert to the desired data type because the "
              "size of the source buffer is too small (0 bytes)! It needs to be at least 1 "
              "bytes.\r\n");
}

} // namespace
} // namespace zent
