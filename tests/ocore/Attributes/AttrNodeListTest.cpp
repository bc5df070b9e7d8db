#include <gtest/gtest.h>

#include "PrintText.h"
#include "ocore/Attributes/IppList.h"
#include "ocore/Attributes/PrimitiveInteger.h"
#include "support/ListText.h"
#include "support/Raised.h"

namespace zent::test {
namespace {

const AttrID a(u"a");
const AttrID b(u"b");
const AttrID missing(u"missing");

TEST(AttrNodeListTest, InstancesAreCountedByName) {
    AttrNodeList list = listOf("a=1 b=2 a=3 b{}");
    EXPECT_EQ(list.findNode(a), &list.getNodeAt(0));
    EXPECT_EQ(list.findNode(a, 1), &list.getNodeAt(2));
    EXPECT_EQ(list.findNode(a, 2), nullptr);
    EXPECT_EQ(list.findNode(b, 1), &list.getNodeAt(3));
    EXPECT_EQ(list.findNode(missing), nullptr);
    EXPECT_EQ(list.countNodes(a), 2U);
    EXPECT_EQ(list.countNodes(missing), 0U);

    AttrNodeList equals = listOf("a=1 a=2 a=1 !a=1");
    const AttrNode wanted(a, IppInteger(1), false);
    EXPECT_EQ(equals.findEqualNode(wanted, 1), &equals.getNodeAt(2));
    EXPECT_EQ(equals.findEqualNode(wanted, 2), nullptr); // the last one is private
}

TEST(AttrNodeListTest, IsNodeAt) {
    const AttrNodeList list = listOf("a=1 b=2");
    EXPECT_TRUE(list.isNodeAt(a, 0));
    EXPECT_FALSE(list.isNodeAt(a, 1));
    EXPECT_FALSE(list.isNodeAt(b, 2));
    EXPECT_TRUE(list.isNodeAt(b, AttrNodeList::lastPosition));
    EXPECT_FALSE(list.isNodeAt(a, AttrNodeList::lastPosition));
    EXPECT_FALSE(AttrNodeList().isNodeAt(a, AttrNodeList::lastPosition));
}

TEST(AttrNodeListTest, SetNodeReplacesOrAppends) {
    AttrNodeList list = listOf("a=1 !b=2 a=3");
    const AttrNode* const second = list.findNode(a, 1);
    EXPECT_EQ(list.setNode(a, IppInteger(7), 1), second);
    list.setNode(b, IppInteger(8), 0); // no more private
    list.setNode(a, IppInteger(9), 5);
    // The value may lie in the very node that it replaces.
    AttrNode& nested = *list.addNode(listOf("b{c=5}").getNodeAt(0));
    list.setNode(
        b,
        static_cast<IppList&>(nested.getAttrValue()).getAttrNodeList().getNodeAt(0).getAttrValue(),
        1);
    EXPECT_EQ(textOfList(list), "a=1 b=8 a=7 a=9 b=5");
}

TEST(AttrNodeListTest, RemovingWhatTheCursorPassedKeepsThePlace) {
    AttrNodeList list = listOf("a=1 b=2 a=3 b=4");
    std::string seen;
    while (list.hasMoreNodes()) {
        AttrNode* const node = list.getNextNode();
        seen += node->getAttrValue().getIppValue().toNarrow();
        if (node->getAttrID() == b) {
            list.removeNode(node);
        }
    }
    EXPECT_EQ(seen, "1234");
    EXPECT_EQ(textOfList(list), "a=1 a=3");
    EXPECT_EQ(list.removeNode(a, 1), 1U);
    EXPECT_EQ(list.removeNode(a, 1), 1U); // none: the end
    EXPECT_EQ(list.removeNode(nullptr), 1U);
    EXPECT_EQ(list.removeNode(a), 0U);
    EXPECT_EQ(textOfList(list), "");
}

TEST(AttrNodeListTest, PrivateNodesAreSkippedOnTheWayOut) {
    AttrNodeList list = listOf("!a=1 b=2 !a=3");
    EXPECT_EQ(list.getNextNonPrivateNode()->getName(), u"b");
    EXPECT_FALSE(list.hasMoreNonPrivateNodes());
    EXPECT_TRUE(list.hasMoreNodes());
    EXPECT_EQ(raised<NodeAccessOutOfBoundsException>([&] { list.getNextNonPrivateNode(); }),
              "AttrNodeList::getNextNonPrivateNode(): No more non-private nodes to get. Caller "
              "failed to test with hasMoreNonPrivateNodes() first!\r\n");
    EXPECT_EQ(list.getNextNode()->getName(), u"a");
    EXPECT_EQ(raised<NodeAccessOutOfBoundsException>([&] { list.getNextNode(); }),
              "AttrNodeList::getNextNode(): No more nodes to get. Caller failed to test with "
              "hasMoreNodes() first!\r\n");
    AttrNodeList copy = list; // from the beginning
    EXPECT_TRUE(copy.hasMoreNonPrivateNodes());
    list.resetCursor();
    EXPECT_TRUE(list.hasMoreNonPrivateNodes());
    list.getNextNode();
    list.removeAllNodes();
    EXPECT_FALSE(list.hasMoreNodes());
}

TEST(AttrNodeListTest, MoveNodeToFront) {
    struct Row {
        std::uint32_t instance;
        bool moved;
        const char* after;
    };
    const Row rows[] = {
        {0, true, "a=1 c=0 b=2 a=3"}, {1, true, "a=3 c=0 a=1 b=2"}, {2, false, "c=0 a=1 b=2 a=3"}};
    for (const Row& row : rows) {
        AttrNodeList list = listOf("c=0 a=1 b=2 a=3");
        EXPECT_EQ(list.moveNodeToFront(a, row.instance), row.moved);
        EXPECT_EQ(textOfList(list), row.after);
    }
    AttrNodeList list = listOf("a=1 b=2");
    EXPECT_FALSE(list.moveNodeToFront(a)); // it is there
}

TEST(AttrNodeListTest, Merge) {
    struct Row {
        const char* mine;
        const char* other;
        bool asSet;
        const char* merged;
    };
    const Row rows[] = {
        // Plainly: what is here wins, collections combine, sets collect.
        {"a=1", "a=2", false, "a=1"},
        {"a=1", "b=2 b=3", false, "a=1 b=2"},
        {"c{a=1}", "c{a=2 b=3}", false, "c{a=1 b=3}"},
        {"s[value=1 value=2]", "s[value=2 value=3]", false, "s[value=1 value=2 value=3]"},
        {"c{s[value=x]}", "c{s[value=y value=x]}", false, "c{s[value=x value=y]}"},
        {"a=1", "c{a=2} c{a=3 b=4}", false, "a=1 c{a=2 b=4}"},
        {"c=1", "c{a=2}", false, "c=1"}, // no list to merge into
        // As a set: all that is new, without duplicates.
        {"value=1 value=2", "value=2 value=3", true, "value=1 value=2 value=3"},
        {"value=1", "value=enum:1", true, "value=1 value=enum:1"},
        // Collections in a set combine only if each is the only member.
        {"value{a=1}", "value{b=2}", true, "value{a=1 b=2}"},
        {"value{a=1} value{b=1}", "value{b=2}", true, "value{a=1} value{b=1} value{b=2}"},
        {"value{a=1}", "value{a=1} value{b=2}", true, "value{a=1} value{a=1} value{b=2}"},
        {"other{a=1}", "value{b=2}", true, "other{a=1} value{b=2}"},
        {"", "!a=1", true, "!a=1"},
    };
    for (const Row& row : rows) {
        AttrNodeList list = listOf(row.mine);
        list.merge(listOf(row.other), row.asSet);
        EXPECT_EQ(textOfList(list), row.merged) << row.mine << " and " << row.other;
    }
    AttrNodeList list = listOf("c{a=1} c{b=2}");
    list.merge(list, true);
    EXPECT_EQ(textOfList(list), "c{a=1} c{b=2}");
}

TEST(AttrNodeListTest, EmptyListsVanishAtAllDepths) {
    struct Row {
        const char* before;
        const char* after;
    };
    const Row rows[] = {
        {"c{s[]}", ""},
        {"a=1 c{} r() b=2 x<>", "a=1 b=2"},
        {"c{a=1 s[value{}]} d{}", "c{a=1}"},
        {"a=name:", "a=name:"}, // empty, but no list
    };
    for (const Row& row : rows) {
        AttrNodeList list = listOf(row.before);
        list.removeEmptyLists();
        EXPECT_EQ(textOfList(list), row.after) << row.before;
    }
}

TEST(AttrNodeListTest, EqualNodesAreRemovedEverywhere) {
    struct Row {
        const char* before;
        const char* removed;
        const char* after;
    };
    const Row rows[] = {
        {"a=1 b=1 a=1 !a=1 a=2", "a=1", "b=1 !a=1 a=2"},
        {"c{a=1} d{s[a=1] b=2} a=enum:1", "a=1", "d{b=2} a=enum:1"},
        {"c{} b=2", "a=1", "b=2"},
        {"c{b=1} c{a=1 b=2}", "c{x=5}", "c{a=1 b=2}"}, // lists are equal by their count
    };
    for (const Row& row : rows) {
        AttrNodeList list = listOf(row.before);
        list.removeNodeEverywhere(listOf(row.removed).getNodeAt(0));
        EXPECT_EQ(textOfList(list), row.after) << row.before;
    }
    AttrNodeList list = listOf("a=1 c{a=1 b=2} a=1");
    list.removeNodeEverywhere(list.getNodeAt(2)); // which goes with the first round
    EXPECT_EQ(textOfList(list), "c{b=2}");
}

TEST(AttrNodeListTest, ReadingIsTyped) {
    const AttrNodeList list = listOf("integer=3 enum=enum:4 keyword=x name=name:y uri=uri:z "
                                     "boolean=boolean:true null=octets:1 list{a=1}");
    const auto mismatch = [](const char* operation, const char16_t* name, const char* kind) {
        return "AttrNodeList::" + std::string(operation) + "(): Specified attribute '" +
               CXString(name).toNarrow() + "' is not " + kind + "!\r\n";
    };
    std::int32_t number = 0;
    CXString text;
    bool truth = false;
    const AttrNodeList* nested = nullptr;
    struct Row {
        const char16_t* name;
        const char* kind;
    };
    const Row rows[] = {{u"integer", "long"}, {u"enum", "long"},  {u"keyword", "string"},
                        {u"name", "string"},  {u"uri", "string"}, {u"boolean", "bool"},
                        {u"null", "none"},    {u"list", "list"}};
    for (const Row& row : rows) {
        const AttrID id(row.name);
        const std::string kind = row.kind;
        const auto expect = [&](const char* readAs, const char* operation, const char* kinds,
                                auto read) {
            if (kind == readAs) {
                EXPECT_TRUE(read()) << id.getText().toNarrow();
            } else {
                EXPECT_EQ(raised<AttributeTypeMismatchException>(read),
                          mismatch(operation, row.name, kinds));
            }
        };
        expect("long", "OrdoAttrToLong", "derived from PrimitiveInteger or IppEnum",
               [&] { return list.OrdoAttrToLong(&number, id); });
        expect("string", "OrdoAttrToString", "derived from PrimitiveString",
               [&] { return list.OrdoAttrToString(&text, id); });
        expect("bool", "OrdoAttrToBool", "IppBoolean",
               [&] { return list.OrdoAttrToBool(&truth, id); });
        expect("list", "OrdoAttrToList", "derived from IppList",
               [&] { return list.OrdoAttrToList(&nested, id); });
    }
    EXPECT_EQ(number, 4);
    EXPECT_EQ(text, u"z");
    EXPECT_TRUE(truth);
    EXPECT_EQ(textOfList(*nested), "a=1");
    // What isn't there is no failure and changes nothing.
    EXPECT_FALSE(list.OrdoAttrToLong(&number, AttrID(u"integer"), 1));
    EXPECT_FALSE(list.OrdoAttrToString(&text, missing));
    EXPECT_FALSE(list.OrdoAttrToBool(&truth, missing));
    EXPECT_FALSE(list.OrdoAttrToList(&nested, missing));
    EXPECT_EQ(number, 4);
}

TEST(AttrNodeListTest, RangesAreReadWholeOrNot) {
    const AttrNodeList list = listOf("a(lower-bound=1 upper-bound=2) a(upper-bound=9) a(x=1) b=1 "
                                     "c(lower-bound=x)");
    std::int32_t lower = -1;
    std::int32_t upper = -1;
    EXPECT_TRUE(list.OrdoAttrToRange(&lower, &upper, a, 0));
    EXPECT_EQ(lower, 1);
    EXPECT_FALSE(list.OrdoAttrToRange(&lower, &upper, a, 1));
    EXPECT_EQ(lower, 1);
    EXPECT_EQ(upper, 9);
    EXPECT_FALSE(list.OrdoAttrToRange(&lower, &upper, a, 2));
    EXPECT_FALSE(list.OrdoAttrToRange(&lower, &upper, a, 3));
    EXPECT_THROW(list.OrdoAttrToRange(&lower, &upper, b), AttributeTypeMismatchException);
    EXPECT_THROW(list.OrdoAttrToRange(&lower, &upper, AttrID(u"c")),
                 AttributeTypeMismatchException);
}

TEST(AttrNodeListTest, Additions) {
    AttrNodeList list;
    list.addInteger(-2147483647 - 1, a);
    list.addEnum(3, a);
    list.addKeyword(u"k", a);
    list.addMimeMediaType(u"m/n", a);
    list.addName(u"n", a);
    list.addSetOf(b)->addInteger(1, a);
    list.addCollection(b);
    list.addResolution(b);
    list.addRangeOfInteger(5, 4, b);
    EXPECT_EQ(textOfList(list),
              "a=-2147483648 a=enum:3 a=k a=mimeMediaType:m/n a=name:n b[a=1] b{} "
              "b<> b(lower-bound=5 upper-bound=4)");
}

TEST(AttrNodeListTest, CopiesAreDeepAndOnlyCountsCompare) {
    AttrNodeList list = listOf("a=1 c{!b=2}");
    const AttrNodeList copy = list;
    list.findNode(a)->getAttrValue().setIppValue(u"5");
    AttrNodeList* nested = nullptr;
    list.OrdoAttrToList(&nested, AttrID(u"c"));
    nested->addInteger(3, a);
    EXPECT_EQ(textOfList(copy), "a=1 c{!b=2}");
    EXPECT_EQ(copy, list);
    EXPECT_EQ(list, listOf("x=y z=1"));
    EXPECT_NE(list, listOf("a=5"));
    list = *nested; // which goes with the old content
    EXPECT_EQ(textOfList(list), "!b=2 a=3");
    list = listOf("c{d{a=1}}");
    list.OrdoAttrToList(&nested, AttrID(u"c"));
    list = std::move(*nested);
    EXPECT_EQ(textOfList(list), "d{a=1}");
}

} // namespace
} // namespace zent::test
