#include "ocore/User/Registry.h"

#include "support/LibraryTesting.h"
#include "support/ScratchUser.h"

namespace zent::test {
namespace {

constexpr const char16_t* key = u"a\\key";
constexpr const char16_t* name = u"name";

class RegistryTest : public testing::Test {
protected:
    const ScratchUser m_scratch;
    const Registry m_registry{};

    std::string stored() const {
        platform::StoredPreference value;
        EXPECT_EQ(platform::readPreference(key, name, value).status,
                  platform::PreferenceStatus::done);
        const auto* const bytes = reinterpret_cast<const char*>(value.bytes.data());
        return std::to_string(value.type) + ':' + std::string(bytes, value.bytes.size());
    }
};

TEST_F(RegistryTest, WritesEachTypeInItsForm) {
    m_registry.setBoolValue(key, name, true);
    EXPECT_EQ(stored(), "3:\x01");
    m_registry.setLongValue(key, name, -2);
    EXPECT_EQ(stored(), "4:\xFE\xFF\xFF\xFF");
    m_registry.setStringValue(key, name, u"a\u20AC");
    EXPECT_EQ(stored(), std::string("1:a\0\xAC\x20", 6));
    m_registry.setDataValue(key, name, ByteBuffer("\0x", 2));
    EXPECT_EQ(stored(), std::string("3:\0x", 4));
}

TEST_F(RegistryTest, AnEmptyValueIsNeitherTruthNorNumber) {
    for (const bool isThere : {false, true}) {
        ByteBuffer value("before", 6);
        EXPECT_EQ(m_registry.getValue(key, name, value), isThere);
        EXPECT_TRUE(value.isEmpty());
        EXPECT_TRUE(m_registry.getBoolValue(key, name, true));
        EXPECT_FALSE(m_registry.getBoolValue(key, name, false));
        EXPECT_EQ(m_registry.getLongValue(key, name, -5), -5);
        m_registry.setDataValue(key, name, {});
    }
    EXPECT_EQ(m_registry.getStringValue(key, name, u"default"), u"");
    EXPECT_EQ(m_registry.getDataValue(key, name, ByteBuffer("x", 1)), ByteBuffer());
}

TEST_F(RegistryTest, ReadsBytesAsWhatIsAskedFor) {
    constexpr std::int32_t tooShort = -1;
    const Rows<std::string, bool, std::int32_t, CXString> rows{
        {std::string("\0", 1), false, tooShort, u""},
        {std::string("x\0\0", 3), true, tooShort, u"x"},
        {std::string("\0\x01\0\0", 4), false, 256, u"\u0100"},
        {"abcde", true, 0x64636261, u"\u6261\u6463"},
        {std::string("o\0k\0\0\0\0\0", 8), true, 0x6B006F, u"ok"}, // with terminators
        {std::string("o\0\0\0k\0", 6), true, 0x6F, std::u16string_view(u"o\0k", 3)}, // not the end
    };
    for (const auto& [content, asBool, asLong, asString] : rows) {
        m_registry.setDataValue(key, name, ByteBuffer(content.data(), content.size()));
        EXPECT_EQ(m_registry.getBoolValue(key, name, !asBool), asBool);
        if (asLong == tooShort) {
            EXPECT_THROW(m_registry.getLongValue(key, name, 0),
                         NotEnoughBytesForDesiredDataTypeException);
        } else {
            EXPECT_EQ(m_registry.getLongValue(key, name, 0), asLong);
        }
        EXPECT_EQ(m_registry.getStringValue(key, name, u"default"), asString);
    }
}

} // namespace
} // namespace zent::test
