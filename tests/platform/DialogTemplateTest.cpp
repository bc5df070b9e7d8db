#include "platform/DialogTemplate.h"

#include "support/TemplateBuilder.h"
#include "support/Testing.h"

namespace zent::test {
namespace {

using namespace platform;

std::vector<std::byte> sample() {
    // Titles of odd and even lengths and creation data of any length: items begin at multiples
    // of 4.
    return TemplateBuilder(u"Job", {-3, 4, 300, 200})
        .add(1, TemplateBuilder::button, TemplateBuilder::visible, {7, 8, 50, 14}, u"OK")
        .add(2, u"SysListView32", 5, {1, 2, 3, 4}, u"odd", {1, 2, 3})
        .add(65535, TemplateBuilder::label, 14, {-1, -2, 0, 0}, std::uint16_t{1010}, {9, 9, 9, 9})
        .build();
}

TEST(DialogTemplate, ReadsHeaderAndItems) {
    const auto result = DialogTemplate::read(sample());
    ASSERT_TRUE(result);
    EXPECT_EQ(result->title, u"Job");
    EXPECT_EQ(result->place.x, -3);
    EXPECT_EQ(result->place.height, 200);
    EXPECT_EQ(result->pointSize, 8);
    EXPECT_EQ(result->typeface, u"MS Shell Dlg");
    ASSERT_EQ(result->items.size(), 3U);
    EXPECT_EQ(result->items[0].windowClass, DialogTemplate::Name(std::uint16_t{0x80}));
    EXPECT_EQ(result->items[0].title, DialogTemplate::Name(u"OK"));
    EXPECT_EQ(result->items[0].place.width, 50);
    EXPECT_EQ(result->items[1].windowClass, DialogTemplate::Name(u"SysListView32"));
    EXPECT_EQ(result->items[1].id, 2);
    EXPECT_EQ(result->items[2].title, DialogTemplate::Name(std::uint16_t{1010}));
    EXPECT_EQ(result->items[2].place.y, -2);
    EXPECT_EQ(result->items[2].style, 0x4000000EU);
}

TEST(DialogTemplate, RefusesWhatEndsEarlyAndTheExtendedForm) {
    const auto bytes = sample();
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        // A copy of its own size, so that a read beyond it is seen.
        const std::vector<std::byte> cut(bytes.begin(),
                                         bytes.begin() + static_cast<std::ptrdiff_t>(length));
        EXPECT_FALSE(DialogTemplate::read(cut)) << length;
    }
    auto extended = bytes;
    extended[0] = std::byte{1};
    extended[1] = std::byte{0};
    extended[2] = extended[3] = std::byte{0xFF};
    EXPECT_FALSE(DialogTemplate::read(extended));
}

} // namespace
} // namespace zent::test
