// What the resource libraries hold for users.

#include <map>
#include <set>

#include "ocore/FeatureSettings/FeatureValueTable.h"
#include "platform/BoundedBytes.h"
#include "resources/ResourceIds.h"
#include "resources/ids.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

CXString textOf(const char16_t* library, std::int32_t id) {
    useResourceLibrary(library);
    return ResourceLibrary().getString(static_cast<std::uint32_t>(id));
}

TEST(StringTableTest, EachIdHasATextThatFitsForUsers) {
    for (const auto& [name, id] : idsByName()) {
        if (!name.starts_with("IDS_")) {
            continue;
        }
        SCOPED_TRACE(name);
        const CXString text = textOf(u"zenres27.dll", id);
        EXPECT_EQ(textOf(u"zenres37.dll", id), text);
        ASSERT_FALSE(text.isEmpty());
        EXPECT_LE(text.length(), 255);
        EXPECT_EQ(text.view().find_first_of(u"\"\\\t"), text.view().npos);
        EXPECT_EQ(text.find(u"  "), -1);
        EXPECT_NE(text.view().back(), u' ');
        const bool isNote = text.view().starts_with(u" ("); // after a name: " (library)"
        EXPECT_EQ(isNote, id == IDS_STOCK_OF_LIBRARY || id == IDS_STOCK_OF_PRINTER);
        const char16_t first = text.view().front();
        EXPECT_TRUE(isNote || !(first >= u'a' && first <= u'z') ||
                    text.view().starts_with(u"sRGB"));
        // Only texts that a value is put into have a place for it.
        EXPECT_EQ(text.find(u"%s") >= 0, id == IDS_CUSTOM_VALUE);
        EXPECT_EQ(text.find(u"%u") >= 0, id == IDS_TEXT_TOO_LONG);
    }
    useResourceLibrary();
}

TEST(PicturesTest, EachIdThatTheTableOfValuesNamesHasItsOwnPicture) {
    constexpr std::size_t headerSize = 40;
    constexpr std::uint32_t side = 64;
    std::set<std::uint32_t> ids;
    for (const auto rows : {getLowerValueRows(), getUpperValueRows()}) {
        for (const FeatureValueRow& row : rows) {
            ids.insert(row.imageID);
        }
    }
    ids.erase(0);
    for (const char16_t* fileName : {u"zenres37.dll", u"zenres27.dll"}) {
        useResourceLibrary(fileName);
        const ResourceLibrary library;
        std::map<std::vector<std::byte>, std::uint32_t> pictures;
        for (const std::uint32_t id : ids) {
            SCOPED_TRACE(id);
            const ResourceData bitmap = library.loadResData(id, resourceType::bitmap);
            const platform::Bytes bytes = bitmap.getBytes().bytes();
            EXPECT_EQ(platform::read32(bytes, 4), side);
            EXPECT_EQ(platform::read32(bytes, 8), side);
            ASSERT_EQ(bytes.size(), headerSize + std::size_t{3} * side * side); // 24 bits a pixel
            const auto [known, isNew] =
                pictures.emplace(std::vector(bytes.begin(), bytes.end()), id);
            EXPECT_TRUE(isNew) << "the same picture as " << known->second;
            // The lines come from the bottom. What is transparent, by the top left pixel, is around
            // the drawing and not all of it.
            EXPECT_EQ(bytes[headerSize + std::size_t{3} * side * (side - 1)], std::byte{0xF0});
            EXPECT_GT(std::ranges::count(bytes, std::byte{0xFF}), 3 * 256); // paper
        }
    }
}

} // namespace
} // namespace zent::test
