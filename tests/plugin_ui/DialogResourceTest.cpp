#include "plugin_ui/DialogResource.h"

#include "platform/DialogTemplate.h"
#include "support/LibraryTesting.h"
#include "support/TemplateBuilder.h"

namespace zent::test {
namespace {

using platform::DialogTemplate;

std::vector<std::byte> templateOf(std::uint32_t count) {
    TemplateBuilder builder(u"Page");
    for (std::uint32_t i = 0; i < count; ++i) {
        builder.add(static_cast<std::uint16_t>(i), TemplateBuilder::button, 0, {});
    }
    return builder.build();
}

DialogResource resourceOf(const std::vector<std::byte>& bytes) {
    DialogResource resource(7, false);
    resource.load(bytes);
    return resource;
}

std::vector<std::byte> bytesOf(const DialogResource& resource) {
    const auto bytes = resource.getTemplate();
    return {bytes.begin(), bytes.end()};
}

TEST(DialogResourceTest, ItemsAreWholeRecordsWithTheirPadding) {
    for (const auto& [what, windowClass, title, data, size] :
         Rows<const char*, TemplateBuilder::Name, TemplateBuilder::Name, std::vector<std::uint8_t>,
              std::size_t>{
             {"ordinal, no title, no data", std::uint16_t{0x80}, u"", {}, 28},
             {"ordinal title", std::uint16_t{0x82}, std::uint16_t{1300}, {}, 28},
             {"title of two", std::uint16_t{0x80}, u"OK", {}, 32},
             {"class by name", u"Edit", u"", {}, 32},
             {"data of 8", std::uint16_t{0x80}, u"", {1, 2, 3, 4, 5, 6, 7, 8}, 36},
         }) {
        SCOPED_TRACE(what);
        auto bytes = TemplateBuilder(u"Odd")
                         .add(5, windowClass, 0, {}, title, data)
                         .add(6, TemplateBuilder::button, 0, {})
                         .build();
        const DialogResource resource = resourceOf(bytes);
        ASSERT_EQ(resource.getItemCount(), 2U);
        EXPECT_EQ(resource.getItems()[0].size(), size);
        EXPECT_EQ(resource.getSize() % 4, 0U);
        bytes.resize(resource.getSize()); // the padding of the last
        EXPECT_EQ(bytesOf(resource), bytes);
    }
}

TEST(DialogResourceTest, MergingAppendsTheItemsUnderTheLeftHeader) {
    DialogResource base =
        resourceOf(TemplateBuilder(u"Base").add(1, TemplateBuilder::button, 0, {}, u"OK").build());
    DialogResource page = resourceOf(templateOf(3));
    DialogResource empty = resourceOf(templateOf(0));
    DialogResource nothing;
    EXPECT_EQ(&(base + page), &base);
    base + empty + nothing + page;
    const auto merged = DialogTemplate::read(base.getTemplate());
    ASSERT_TRUE(merged);
    EXPECT_EQ(merged->title, u"Base");
    std::vector<std::uint16_t> ids;
    for (const auto& item : merged->items) {
        ids.push_back(item.id);
    }
    EXPECT_EQ(ids, (std::vector<std::uint16_t>{1, 0, 1, 2, 0, 1, 2}));
    base + base;
    EXPECT_EQ(DialogTemplate::read(base.getTemplate())->items.size(), 14U);
}

TEST(DialogResourceTest, AnEmptyLeftSideTakesOverTheRightOne) {
    DialogResource left(3, true);
    DialogResource right = resourceOf(templateOf(2));
    left + right;
    EXPECT_EQ(bytesOf(left), bytesOf(right));
    EXPECT_EQ(left.getResourceId(), 7U);
    EXPECT_FALSE(left.hidesItems());
    left = DialogResource(right);
    EXPECT_EQ(bytesOf(left), bytesOf(right));
}

TEST(DialogResourceTest, CountsItemsIn16Bits) {
    DialogResource base = resourceOf(templateOf(65000));
    DialogResource few = resourceOf(templateOf(536));
    EXPECT_EQ(raised<ExceededNumberOfDlgItems>([&] { base + few; }),
              "EXCEPTION: DialogResource::operator+() detected >65535 DlgItems.\r\n");
    EXPECT_EQ(base.getItemCount(), 65000U);
    DialogResource fewer = resourceOf(templateOf(535));
    base + fewer;
    EXPECT_EQ(DialogTemplate::read(base.getTemplate())->items.size(), 65535U);
}

TEST(DialogResourceTest, RefusesWhatIsEmptyOrBroken) {
    EXPECT_EQ(raised<ResourceAcquisitionException>([] { DialogResource().getResourceData(); }),
              "DialogResource::getResourceData() failed - ResourceData ByteBuffer EMPTY!\r\n");
    DialogResource resource = resourceOf(templateOf(2));
    const auto before = bytesOf(resource);
    auto cut = templateOf(2);
    cut.resize(cut.size() - 4);
    EXPECT_EQ(raised<ResourceAcquisitionException>([&] { resource.load(cut); }),
              "DialogResource::splitItems() failed - the dialog template is broken\r\n");
    EXPECT_EQ(bytesOf(resource), before);
}

} // namespace
} // namespace zent::test
