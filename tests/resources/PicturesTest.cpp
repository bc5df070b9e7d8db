#include <map>
#include <set>

#include "ocore/FeatureSettings/FeatureValueTable.h"
#include "platform/BoundedBytes.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

using platform::read16;
using platform::read32;

constexpr std::size_t side = 64;
constexpr std::uint32_t ground = 0xF0F0F0;
constexpr std::uint32_t unstyled = 0x000000; // of a shape that the style sheet doesn't reach

/// The colours (0xRRGGBB) of a bitmap's pixels, line by line from the bottom; every fault is
/// reported.
std::vector<std::uint32_t> readPixels(platform::Bytes bitmap) {
    constexpr std::uint32_t headerSize = 40;
    constexpr std::uint16_t bits = 24;
    EXPECT_EQ(read32(bitmap, 0), headerSize);
    EXPECT_EQ(read32(bitmap, 4), side);
    EXPECT_EQ(read32(bitmap, 8), side);
    EXPECT_EQ(read16(bitmap, 14), bits);
    EXPECT_EQ(read32(bitmap, 16), 0U); // not compressed
    const auto pixels = platform::slice(bitmap, headerSize, side * side * bits / 8);
    if (testing::Test::HasFailure() || !pixels) {
        ADD_FAILURE() << "no bitmap of the kind that is made";
        return {};
    }
    std::vector<std::uint32_t> colours;
    for (std::size_t place = 0; place < pixels->size(); place += bits / 8) {
        const std::uint32_t blueAndGreen = *read16(*pixels, place);
        colours.push_back(std::to_integer<std::uint32_t>((*pixels)[place + 2]) << 16 |
                          blueAndGreen);
    }
    return colours;
}

TEST(PicturesTest, EachIdThatTheTableOfValuesNamesHasItsOwnPicture) {
    std::set<std::uint32_t> ids;
    for (const auto rows : {getLowerValueRows(), getUpperValueRows()}) {
        for (const FeatureValueRow& row : rows) {
            ids.insert(row.imageID);
        }
    }
    ids.erase(0);
    ASSERT_EQ(ids.size(), 28U);
    for (const char16_t* fileName : {u"zenres37.dll", u"zenres27.dll"}) {
        useResourceLibrary(fileName);
        const ResourceLibrary library;
        std::map<std::vector<std::uint32_t>, std::uint32_t> pictures;
        for (const std::uint32_t id : ids) {
            SCOPED_TRACE(id);
            const ResourceData bitmap = library.loadBitmap(id);
            const std::vector<std::uint32_t> pixels = readPixels(bitmap.getBytes().bytes());
            ASSERT_FALSE(pixels.empty());
            const auto [known, isNew] = pictures.emplace(pixels, id);
            EXPECT_TRUE(isNew) << "the same picture as " << known->second;
            // What is transparent, by the top left pixel, is around the drawing and not all of it.
            EXPECT_EQ(pixels[side * (side - 1)], ground);
            EXPECT_GT(std::count(pixels.begin(), pixels.end(), 0xFFFFFFU), 256); // paper
            EXPECT_EQ(std::count(pixels.begin(), pixels.end(), unstyled), 0);
        }
    }
}

} // namespace
} // namespace zent::test
