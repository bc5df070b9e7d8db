#include "ocore/Registry.h"

#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "PrintText.h"
#include "ocore/Exceptions.h"
#include "support/ScratchPreferences.h"

namespace zent {
namespace {

constexpr const char16_t* key = u"a\\key";
constexpr const char16_t* name = u"name";

class RegistryTest : public testing::Test {
protected:
    const test::ScratchPreferences m_scratch;
    const Registry m_registry{};

    std::uint32_t storedType() const {
        platform::StoredPreference value;
        EXPECT_EQ(platform::readPreference(key, name, value).status,
                  platform::PreferenceStatus::done);
        return value.type;
    }
    ByteBuffer storedBytes() const {
        ByteBuffer value;
        EXPECT_TRUE(m_registry.getValue(key, name, value));
        return value;
    }
};

TEST_F(RegistryTest, WritesEachTypeInItsForm) {
    m_registry.setBoolValue(key, name, true);
    EXPECT_EQ(storedType(), registryType::binary);
    EXPECT_EQ(storedBytes(), ByteBuffer("\x01", 1));
    m_registry.setLongValue(key, name, -2);
    EXPECT_EQ(storedType(), registryType::number);
    EXPECT_EQ(storedBytes(), ByteBuffer("\xFE\xFF\xFF\xFF", 4));
    m_registry.setStringValue(key, name, u"a\u20AC");
    EXPECT_EQ(storedType(), registryType::text);
    EXPECT_EQ(storedBytes(), ByteBuffer("a\0\xAC\x20", 4));
    m_registry.setDataValue(key, name, ByteBuffer("\0x", 2));
    EXPECT_EQ(storedType(), registryType::binary);
    EXPECT_EQ(storedBytes(), ByteBuffer("\0x", 2));
}

TEST_F(RegistryTest, ReadsWithDefaults) {
    const ByteBuffer otherData("default", 7);
    const auto expectDefaults = [&] {
        EXPECT_TRUE(m_registry.getBoolValue(key, name, true));
        EXPECT_FALSE(m_registry.getBoolValue(key, name, false));
        EXPECT_EQ(m_registry.getLongValue(key, name, -5), -5);
    };
    ByteBuffer value("before", 6);
    EXPECT_FALSE(m_registry.getValue(key, name, value));
    EXPECT_TRUE(value.isEmpty());
    expectDefaults();
    EXPECT_EQ(m_registry.getStringValue(key, name, u"default"), u"default");
    EXPECT_EQ(m_registry.getDataValue(key, name, otherData), otherData);

    // An empty value is a text or data, but neither a truth value nor a number.
    m_registry.setDataValue(key, name, {});
    EXPECT_TRUE(m_registry.getValue(key, name, value));
    expectDefaults();
    EXPECT_EQ(m_registry.getStringValue(key, name, u"default"), u"");
    EXPECT_EQ(m_registry.getDataValue(key, name, otherData), ByteBuffer());
}

TEST_F(RegistryTest, ReadsBytesAsWhatIsAskedFor) {
    const struct {
        std::string content;
        bool asBool;
        std::optional<std::int32_t> asLong; // none: too short
        const char16_t* asString;
    } rows[] = {
        {std::string("\0", 1), false, std::nullopt, u""},
        {std::string("x\0\0", 3), true, std::nullopt, u"x"},
        {std::string("\0\x01\0\0", 4), false, 256, u"\u0100"},
        {"abcde", true, 0x64636261, u"\u6261\u6463"},
        {std::string("o\0k\0\0\0\0\0", 8), true, 0x6B006F, u"ok"}, // with terminators
        {std::string("o\0\0\0k\0", 6), true, 0x6F, nullptr},       // one in the middle stays
    };
    for (const auto& row : rows) {
        m_registry.setDataValue(key, name, ByteBuffer(row.content.data(), row.content.size()));
        EXPECT_EQ(m_registry.getBoolValue(key, name, !row.asBool), row.asBool);
        if (row.asLong) {
            EXPECT_EQ(m_registry.getLongValue(key, name, 0), *row.asLong);
        } else {
            EXPECT_THROW(m_registry.getLongValue(key, name, 0),
                         NotEnoughBytesForDesiredDataTypeException);
        }
        const CXString text = m_registry.getStringValue(key, name, u"default");
        if (row.asString != nullptr) {
            EXPECT_EQ(text, row.asString);
        } else {
            EXPECT_EQ(text.length(), 3);
        }
    }
}

} // namespace
} // namespace zent
