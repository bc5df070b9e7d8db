#include "ocore/FeatureSettings/StockSize.h"

#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

class StockSizeTest : public testing::Test {
protected:
    StockSizeTest() { useResourceLibrary(); } // which holds their names
};

TEST_F(StockSizeTest, SizesOfNoTableAreOther) {
    EXPECT_EQ(StockSize(20000, 10000).getSizeName(), u"SIZE_OTHER");
    EXPECT_EQ(StockSize(20000, 10000).getWidth(), 20000) << "in the order given";
    EXPECT_FALSE(StockSize(0, 0).isUnspecified());
    EXPECT_EQ(StockSize(99).getSizeName(), u"SIZE_UNSPECIFIED");
    EXPECT_EQ(StockSize(99).getWidth(), 0);
}

TEST_F(StockSizeTest, SizesAreTurnedIfOnlyThatFits) {
    const Rows<SizeLimits, bool> rows{
        {{21000, 21000, 29700, 29700}, false}, // bounds are inclusive
        {{29700, 29700, 21000, 21000}, true},
        {{10000, 50000, 10000, 50000}, false}, // both ways fit
        {{1, 2, 1, 2}, false},                 // neither does
        {{29701, 50000, 10000, 50000}, false},
        {{25000, 50000, 10000, 20999}, false},
    };
    for (const auto& [limits, turned] : rows) {
        std::int32_t width = 0;
        std::int32_t height = 0;
        StockSize(21000, 29700).getOrientedDimensions(limits, &width, &height);
        EXPECT_EQ(width, turned ? 29700 : 21000);
        EXPECT_EQ(height, turned ? 21000 : 29700);
    }
}

TEST_F(StockSizeTest, SizesWithinLimits) {
    const Rows<SizeLimits, std::vector<std::uint32_t>> rows{
        // 17 x 11 inches and A3 stand in landscape order in the table.
        {{27000, 30000, 40000, 43200}, {4, 9}},
        {{21000, 21600, 27900, 29700}, {2, 8}},
        {{27900, 29700, 21000, 21600}, {2, 8}},
    };
    for (const auto& [limits, expected] : rows) {
        std::vector<std::uint32_t> codes;
        for (const StockSize& size : StockSize::getSizesWithin(limits)) {
            codes.push_back(size.getSize());
        }
        EXPECT_EQ(codes, expected);
    }
    // All but the unspecified and the other.
    EXPECT_EQ(StockSize::getSizesWithin({0, 100000, 0, 100000}).size(), 13U);
}

} // namespace
} // namespace zent::test
