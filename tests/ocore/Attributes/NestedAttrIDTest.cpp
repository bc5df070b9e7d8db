#include "ocore/Attributes/NestedAttrID.h"

#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

/// The place of "x" in the two collections.
NestedAttrID widthOfMedia() {
    NestedAttrID id{AttrID(u"x")};
    for (const char16_t* name : {u"media-col", u"media-size"}) {
        id.addParent(name, syntax::collection, NestedAttrID::plainParent);
    }
    return id;
}

TEST(NestedAttrIDTest, ListsAreFoundOrCreatedAndRemovedIfEmpty) {
    const NestedAttrID width = widthOfMedia();
    const Rows<const char*, std::uint32_t, const char*, const char*, const char*> rows{
        // The list, an instance, what is found, what is created, and what removing leaves of it.
        {"media-col{media-size{x=1}}", 0, "x=1", "media-col{media-size{x=1}}",
         "media-col{media-size{x=1}}"},
        {"", 0, "none", "media-col{media-size{}}", ""},
        {"media-col{a=1}", 0, "none", "media-col{a=1 media-size{}}", "media-col{a=1}"},
        // The first of each parent, and the instance of the innermost.
        {"media-col{} media-col{media-size{x=1}}", 0, "none",
         "media-col{media-size{}} media-col{media-size{x=1}}", "media-col{media-size{x=1}}"},
        {"media-col{media-size{x=1} media-size{x=2}}", 1, "x=2",
         "media-col{media-size{x=1} media-size{x=2}}",
         "media-col{media-size{x=1} media-size{x=2}}"},
        {"media-col{a{}}", 0, "none", "media-col{a{} media-size{}}", "media-col{a{}}"},
    };
    for (const auto& [text, instance, expected, withCreated, cleaned] : rows) {
        SCOPED_TRACE(text);
        AttrNodeList list = listOf(text);
        const AttrNodeList* const found = width.findList(list, instance);
        EXPECT_EQ(found != nullptr ? textOfList(*found) : "none", expected);
        const AttrNodeList* const created = width.findOrCreateList(list, instance);
        EXPECT_EQ(created, width.findList(list, instance));
        EXPECT_EQ(textOfList(list), withCreated);
        width.removeEmptyParents(list);
        EXPECT_EQ(textOfList(list), cleaned);
    }
    AttrNodeList scalar = listOf("media-col=5");
    EXPECT_EQ(NestedAttrID(AttrID(u"a")).findList(scalar, 7), &scalar);
    EXPECT_THROW(width.findList(scalar), AttributeTypeMismatchException);
    EXPECT_THROW(width.findOrCreateList(scalar), AttributeTypeMismatchException);
    EXPECT_EQ(textOfList(scalar), "media-col=5");
}

} // namespace
} // namespace zent::test
