#include <gtest/gtest.h>

#include "ZENT_API/CachedOutput.h"

namespace zent::test {
namespace {

TEST(CachedOutputTest, AKeyIsATextOrANumberInDecimal) {
    CachedOutput cache;
    EXPECT_FALSE(cache.isFor(CXString())); // for no key at all
    cache.setKey(u"");
    EXPECT_TRUE(cache.isFor(CXString()));
    cache.setKeyFromNumber(1);
    EXPECT_TRUE(cache.isFor(1U));
    EXPECT_TRUE(cache.isFor(CXString(u"1")));
    EXPECT_FALSE(cache.isFor(2U));
    EXPECT_FALSE(cache.isFor(CXString(u"01")));
    cache.setKeyFromNumber(0xFFFFFFFF);
    EXPECT_TRUE(cache.isFor(CXString(u"-1")));
    cache.setKey(u"Report.doc");
    EXPECT_FALSE(cache.isFor(CXString(u"report.doc")));
    cache.clear();
    EXPECT_FALSE(cache.isFor(CXString(u"Report.doc")));
    EXPECT_FALSE(cache.isFor(CXString()));
}

TEST(CachedOutputTest, HandingOutKeepsWhatWasNotTaken) {
    struct Row {
        const char* content;
        bool hasBuffer;
        std::uint32_t given;
        ZentResult result;
        bool kept;
        const char* taken;
    };
    const Row rows[] = {
        {"abc", false, 9, ZENT_OK, true, "?????"},
        {"abc", true, 2, ZENT_ERR_BUFFER_TOO_SMALL, true, "?????"},
        {"abc", true, 3, ZENT_OK, false, "abc??"},
        {"abc", true, 5, ZENT_OK, false, "abc??"},
        {"", false, 0, ZENT_OK, true, "?????"},
        {"", true, 0, ZENT_OK, false, "?????"},
    };
    for (const Row& row : rows) {
        const std::string content = row.content;
        CachedOutput cache;
        cache.setKey(u"key");
        cache.buffer().append(content.data(), content.size());
        std::string target = "?????";
        std::uint32_t size = row.given;
        EXPECT_EQ(cache.handOut(row.hasBuffer ? target.data() : nullptr, size), row.result);
        EXPECT_EQ(size, content.size());
        EXPECT_EQ(target, row.taken);
        EXPECT_EQ(cache.isFor(CXString(u"key")), row.kept);
        EXPECT_EQ(cache.buffer().size(), row.kept ? content.size() : 0);
    }
}

} // namespace
} // namespace zent::test
