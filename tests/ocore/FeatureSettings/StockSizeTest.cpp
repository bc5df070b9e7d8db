#include <gtest/gtest.h>

#include "PrintText.h"
#include "ocore/FeatureSettings/StockSize.h"
#include "resources/UseResourceLibrary.h"

namespace zent::test {
namespace {

class StockSizeTest : public testing::Test {
protected:
    void SetUp() override { useResourceLibrary(); }
};

TEST_F(StockSizeTest, SizesAreFoundEitherWayRound) {
    struct Row {
        std::int32_t givenWidth;
        std::int32_t givenHeight;
        const char16_t* name;
        std::int32_t width;
        std::int32_t height;
    };
    const Row rows[] = {
        {27900, 21600, u"SIZE_8PT5x11", 21600, 27900},
        {29700, 42000, u"SIZE_A3", 42000, 29700}, // landscape in the table
        {10000, 20000, u"SIZE_OTHER", 10000, 20000},
        {20000, 10000, u"SIZE_OTHER", 20000, 10000},
        {0, 0, u"SIZE_OTHER", 0, 0},
        {-1, -1, u"SIZE_OTHER", -1, -1},
    };
    for (const Row& row : rows) {
        const StockSize size(row.givenWidth, row.givenHeight);
        EXPECT_EQ(size.getSizeName(), row.name);
        EXPECT_EQ(size.getWidth(), row.width);
        EXPECT_EQ(size.getHeight(), row.height);
        EXPECT_FALSE(size.isUnspecified());
        EXPECT_EQ(size.getDisplayName(), StockSize(size.getSize()).getDisplayName());
    }
    EXPECT_EQ(StockSize(42000, 29700).getShortEdge(), 29700);
    EXPECT_EQ(StockSize(42000, 29700).getLongEdge(), 42000);
    StockSize size(8);
    EXPECT_EQ(size.getSizeName(), u"SIZE_A4");
    size.setFromCode(99);
    EXPECT_TRUE(size.isUnspecified());
    EXPECT_EQ(size.getSizeName(), u"SIZE_UNSPECIFIED");
    EXPECT_EQ(size.getWidth(), 0);
    EXPECT_EQ(size.getDisplayName(), StockSize().getDisplayName());
}

TEST_F(StockSizeTest, SizesAreTurnedIfOnlyThatFits) {
    struct Row {
        SizeLimits limits;
        bool turned = false;
    };
    const Row rows[] = {
        {{21000, 21000, 29700, 29700}, false}, // bounds are inclusive
        {{29700, 29700, 21000, 21000}, true},
        {{10000, 50000, 10000, 50000}, false}, // both ways fit
        {{1, 2, 1, 2}, false},                 // neither does
        {{29701, 50000, 10000, 50000}, false},
        {{25000, 50000, 10000, 20999}, false},
    };
    for (const Row& row : rows) {
        std::int32_t width = 0;
        std::int32_t height = 0;
        StockSize(21000, 29700).getOrientedDimensions(row.limits, &width, &height);
        EXPECT_EQ(width, row.turned ? 29700 : 21000) << &row - rows;
        EXPECT_EQ(height, row.turned ? 21000 : 29700) << &row - rows;
    }
}

TEST_F(StockSizeTest, SizesWithinLimits) {
    const auto within = [](const SizeLimits& limits) {
        std::vector<std::uint32_t> codes;
        for (const StockSize& size : StockSize::getSizesWithin(limits)) {
            codes.push_back(size.getSize());
        }
        return codes;
    };
    // 17 x 11 inches and A3 stand in landscape order in the table.
    EXPECT_EQ(within({27000, 30000, 40000, 43200}), (std::vector<std::uint32_t>{4, 9}));
    EXPECT_EQ(within({21000, 21600, 27900, 29700}), (std::vector<std::uint32_t>{2, 8}));
    EXPECT_EQ(within({27900, 29700, 21000, 21600}), (std::vector<std::uint32_t>{2, 8}));
    EXPECT_EQ(within({0, 100000, 0, 100000}).size(), 13U); // all but the unspecified and the other
}

} // namespace
} // namespace zent::test
