#include "platform/PreferenceStore.h"

#include "platform/CodePage.h"
#include "support/Testing.h"

namespace zent::test {
namespace {

using namespace platform;

class PreferenceStoreTest : public testing::Test {
protected:
    const ScratchUser m_scratch;

    static std::span<const std::byte> bytes(const std::string& content) {
        return std::as_bytes(std::span(content));
    }
    static PreferenceStatus write(std::u16string_view key, std::u16string_view name,
                                  const std::string& content,
                                  std::uint32_t type = registryType::binary) {
        return writePreference(key, name, type, bytes(content)).status;
    }
    /// The value as "type:bytes", or "absent".
    static std::string read(std::u16string_view key, std::u16string_view name) {
        StoredPreference value;
        const PreferenceResult result = readPreference(key, name, value);
        if (result.status == PreferenceStatus::done) {
            EXPECT_EQ(result.error, 0U);
            const auto* content = reinterpret_cast<const char*>(value.bytes.data());
            return std::to_string(value.type) + ':' + std::string(content, value.bytes.size());
        }
        EXPECT_NE(result.status, PreferenceStatus::valueFailed) << result.error;
        return "absent";
    }
};

TEST_F(PreferenceStoreTest, KeepsTypesAndBytes) {
    std::string all(300'000, 'x');
    for (std::size_t i = 0; i < all.size(); ++i) {
        all[i] = static_cast<char>(i * 31 / 7);
    }
    // Each takes the place of the one before.
    for (const auto& [type, content] : Rows<std::uint32_t, std::string>{
             {registryType::text, std::string("a\0\xE9\0", 4)},
             {registryType::text, ""},
             {registryType::text, std::string("e\0n\0d\0\0\0", 8)},
             {registryType::text, std::string("odd", 3)},
             {registryType::binary, ""},
             {registryType::binary, std::string("\0", 1)},
             {registryType::binary, all},
             {registryType::number, "\xFF\xFF\xFF\xFF"},
             {registryType::number, ""},
         }) {
        EXPECT_EQ(write(u"a\\key", u"name", content, type), PreferenceStatus::done);
        EXPECT_EQ(read(u"a\\key", u"name"), std::to_string(type) + ':' + content);
    }
}

TEST_F(PreferenceStoreTest, RefusesWhatIsTooLarge) {
    const std::string largest(largestPreference, 'x');
    EXPECT_EQ(write(u"a\\key", u"name", largest), PreferenceStatus::done);
    EXPECT_EQ(write(u"a\\key", u"name", largest + 'y'), PreferenceStatus::valueFailed);
    EXPECT_EQ(read(u"a\\key", u"name"), "3:" + largest);
    const std::u16string longName(longestPreferenceName + 1, u'n');
    EXPECT_EQ(write(u"a\\key", longName, "x"), PreferenceStatus::valueFailed);
    EXPECT_EQ(write(longName, u"name", "x"), PreferenceStatus::keyFailed);
}

TEST_F(PreferenceStoreTest, KeepsKeysAndNamesApart) {
    const std::u16string longName(250, u'n');
    const char16_t loneSurrogates[][3] = {{0xD800, u'x', 0}, {0xD801, u'x', 0}, {u'x', 0xDC00, 0}};
    const Rows<const char16_t*, const char16_t*> rows{
        {u"a\\b", u"name"},           {u"a", u"name"},
        {u"a\\b", u"name2"},          {u"a\\b", u""}, // has a value too
        {u"a\\c\\d", u"name"},        {u"a\\gr\u00FC\u00DF \u65E5", u"\U0001F5A8 name"},
        {u"a\\b", u"c\\name"},        {u"a'; --\\\"%_?*", u"'; DROP TABLE preference; --"},
        {u"a\\b", longName.c_str()},  {u"a\\b", loneSurrogates[0]},
        {u"a\\b", loneSurrogates[1]}, {u"a\\b", loneSurrogates[2]},
        {u"a\\b\\end\\", u"name"}, // a path that ends in a separator can be used all the same
    };
    int number = 0;
    for (const auto& [key, name] : rows) {
        EXPECT_EQ(read(key, name), "absent") << number;
        EXPECT_EQ(write(key, name, std::to_string(number)), PreferenceStatus::done);
        ++number;
    }
    number = 0;
    for (const auto& [key, name] : rows) {
        EXPECT_EQ(read(key, name), "3:" + std::to_string(number)) << number;
        ++number;
    }
    EXPECT_EQ(read(u"a\\b", u"name3"), "absent");
    EXPECT_EQ(read(u"a\\z", u"name"), "absent");
}

TEST_F(PreferenceStoreTest, TellsMissingKeysFromMissingValues) {
    const std::vector<std::byte> kept(4, std::byte{7});
    StoredPreference value{registryType::number, kept};
    const PreferenceResult missing = readPreference(u"a\\key", u"name", value);
    EXPECT_EQ(missing.status, PreferenceStatus::noKey);
    EXPECT_NE(missing.error, 0U);
    const std::string why = toAnsi(explainPreferenceFailure(u"a\\key", missing));
    EXPECT_LT(why.find(": "), why.size() - 2) << why;

    ASSERT_EQ(write(u"a\\key", u"name", ""), PreferenceStatus::done);
    EXPECT_EQ(readPreference(u"a\\key", u"other", value).status, PreferenceStatus::noValue);
    EXPECT_EQ(value.bytes, kept);
    EXPECT_EQ(value.type, registryType::number);
    EXPECT_EQ(readPreference(u"a\\key", u"name", value).status, PreferenceStatus::done);
    EXPECT_TRUE(value.bytes.empty());
}

} // namespace
} // namespace zent::test
