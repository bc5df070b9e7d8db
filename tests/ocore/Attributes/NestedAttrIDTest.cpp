#include <gtest/gtest.h>

#include "PrintText.h"
#include "ocore/Attributes/NestedAttrID.h"
#include "support/ListText.h"
#include "support/Raised.h"

namespace zent::test {
namespace {

NestedAttrID idOf(const char16_t* leaf, std::initializer_list<const char16_t*> sets,
                  std::initializer_list<const char16_t*> collections) {
    NestedAttrID id{AttrID(leaf)};
    for (const char16_t* name : sets) {
        id.addParent(name, syntax::setOf, NestedAttrID::namingParent);
    }
    for (const char16_t* name : collections) {
        id.addParent(name, syntax::collection, NestedAttrID::plainParent);
    }
    return id;
}

const NestedAttrID ranges = idOf(u"value", {u"page-ranges"}, {});
const NestedAttrID width = idOf(u"x", {}, {u"media-col", u"media-size"});

TEST(NestedAttrIDTest, IsNamedByItsLeafOrByTheNamingParent) {
    EXPECT_EQ(NestedAttrID().getAttrID().getText(), u"NAID_TEMPORARY");
    EXPECT_EQ(NestedAttrID().getName(), u"");
    EXPECT_EQ(ranges.getName(), u"page-ranges");
    EXPECT_FALSE(ranges.isSimple());
    EXPECT_EQ(width.getName(), u"x");
    EXPECT_EQ(width.getDepth(), 2U);
    EXPECT_EQ(width.getParentName(0), u"media-size"); // from the innermost
    EXPECT_EQ(width.getParentName(1), u"media-col");
    EXPECT_TRUE(width.hasParent(u"media-col"));
    EXPECT_FALSE(width.hasParent(u"x"));
    EXPECT_TRUE(ranges.isNamingParent(0));
    EXPECT_FALSE(width.isNamingParent(0));
    EXPECT_THROW(NestedAttrID().addParent(u"", syntax::setOf, 1), InvalidAttributeIdException);

    NestedAttrID id = width;
    id.setNamingParent(1, 1);
    EXPECT_EQ(id.getName(), u"media-col");
    EXPECT_NE(id, width);
    id.setNamingParent(0, 2);
    EXPECT_EQ(id.getName(), u"media-size");
    EXPECT_FALSE(id.isNamingParent(1)); // one at a time
    id.resetNaming();
    EXPECT_EQ(id, width);
}

TEST(NestedAttrIDTest, TheNameFollowsTheLeafUnlessAParentGaveIt) {
    NestedAttrID id = width;
    id.setAttrID(AttrID(u"y"));
    EXPECT_EQ(id.getName(), u"y");
    id = ranges;
    id.setAttrID(AttrID(u"y"));
    EXPECT_EQ(id.getName(), u"page-ranges");
    id = NestedAttrID();
    id.setAttrID(AttrID(u"y"));
    EXPECT_EQ(id.getName(), u"y");
}

TEST(NestedAttrIDTest, ListsAreFoundOrCreated) {
    struct Row {
        const char* list;
        std::uint32_t instance;
        const char* found; // null if it isn't there
        const char* withCreated;
    };
    const Row rows[] = {
        {"media-col{media-size{x=1}}", 0, "x=1", "media-col{media-size{x=1}}"},
        {"", 0, nullptr, "media-col{media-size{}}"},
        {"media-col{a=1}", 0, nullptr, "media-col{a=1 media-size{}}"},
        // The first of each parent, and the instance of the innermost.
        {"media-col{} media-col{media-size{x=1}}", 0, nullptr,
         "media-col{media-size{}} media-col{media-size{x=1}}"},
        {"media-col{media-size{x=1} media-size{x=2}}", 1, "x=2",
         "media-col{media-size{x=1} media-size{x=2}}"},
        {"media-col{media-size{x=1}}", 1, nullptr, "media-col{media-size{x=1} media-size{}}"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.list);
        AttrNodeList list = listOf(row.list);
        const AttrNodeList* const found = width.findList(list, row.instance);
        EXPECT_EQ(found == nullptr, row.found == nullptr);
        if (found != nullptr && row.found != nullptr) {
            EXPECT_EQ(textOfList(*found), row.found);
        }
        const AttrNodeList* const created = width.findOrCreateList(list, row.instance);
        EXPECT_EQ(textOfList(list), row.withCreated);
        EXPECT_EQ(created, width.findList(list, row.instance));
    }
    AttrNodeList list = listOf("a=1");
    EXPECT_EQ(NestedAttrID(AttrID(u"a")).findList(list, 7), &list);
    EXPECT_EQ(textOfList(*ranges.findOrCreateList(list)), "");
    EXPECT_EQ(textOfList(list), "a=1 page-ranges[]");

    AttrNodeList scalar = listOf("media-col=5");
    EXPECT_THROW(width.findList(scalar), AttributeTypeMismatchException);
    EXPECT_THROW(width.findOrCreateList(scalar), AttributeTypeMismatchException);
    EXPECT_EQ(textOfList(scalar), "media-col=5");
}

TEST(NestedAttrIDTest, EmptyParentsAreRemoved) {
    struct Row {
        const char* before;
        const char* after;
    };
    const Row rows[] = {
        {"media-col{media-size{}}", ""},
        {"media-col{media-size{} a=1}", "media-col{a=1}"},
        {"media-col{media-size{y=1}}", "media-col{media-size{y=1}}"},
        {"media-col{}", ""},
        {"a=1", "a=1"},
        {"media-col{a{}}", "media-col{a{}}"}, // not on the path
        {"media-col{media-size{}} media-col{media-size{}}", "media-col{media-size{}}"},
    };
    for (const Row& row : rows) {
        AttrNodeList list = listOf(row.before);
        width.removeEmptyParents(list);
        EXPECT_EQ(textOfList(list), row.after) << row.before;
    }
}

} // namespace
} // namespace zent::test
