#include "ZENT_API/CachedOutput.h"

#include "support/Testing.h"

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

} // namespace
} // namespace zent::test
