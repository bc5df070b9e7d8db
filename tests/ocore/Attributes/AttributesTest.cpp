#include "ocore/Attributes/AttrValueFactory.h"
#include "ocore/Attributes/IppBoolean.h"
#include "ocore/Attributes/IppList.h"
#include "ocore/Attributes/IppNull.h"
#include "ocore/Attributes/PrimitiveInteger.h"
#include "ocore/Attributes/PrimitiveString.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

const AttrID a(u"a");
const AttrID b(u"b");

TEST(AttrNodeListTest, SetNodeReplacesOrAppends) {
    AttrNodeList list = listOf("a=1 !b=2 a=3");
    const AttrNode* const second = list.findNode(a, 1);
    EXPECT_EQ(list.setNode(a, IppInteger(7), 1), second);
    list.setNode(b, IppInteger(8), 0); // no more private
    list.setNode(a, IppInteger(9), 5);
    // The value may lie in the very node that it replaces.
    AttrNodeList* nested = list.addCollection(b);
    list.setNode(b, nested->addInteger(5, a)->getAttrValue(), 1);
    EXPECT_EQ(textOfList(list), "a=1 b=8 a=7 a=9 b=5");
}

TEST(AttrNodeListTest, RemovingWhatTheCursorPassedKeepsThePlace) {
    AttrNodeList list = listOf("a=1 b=2 a=3 b=4");
    while (list.hasMoreNodes()) {
        AttrNode* const node = list.getNextNode();
        if (node->getAttrID() == b) {
            list.removeNode(node);
        } else {
            node->setPrivate(true);
        }
    }
    EXPECT_EQ(textOfList(list), "!a=1 !a=3");
    EXPECT_EQ(list.removeNode(a, 1), 1U);
    EXPECT_EQ(list.removeNode(a, 1), 1U); // none: the end
    EXPECT_EQ(list.removeNode(nullptr), 1U);
    EXPECT_EQ(list.removeNode(a), 0U);
}

TEST(AttrNodeListTest, Merge) {
    const Rows<const char*, const char*, bool, const char*> rows{
        // Plainly: what is here wins, collections combine, sets collect.
        {"a=1", "a=2", false, "a=1"},
        {"c{a=1}", "c{a=2 b=3}", false, "c{a=1 b=3}"},
        {"s[value=1 value=2]", "s[value=2 value=3]", false, "s[value=1 value=2 value=3]"},
        {"a=1", "c{a=2} c{a=3 b=4}", false, "a=1 c{a=2 b=4}"},
        {"c=1", "c{a=2}", false, "c=1"}, // no list to merge into
        // As a set: all that is new, without duplicates.
        {"value=1 value=2", "value=2 value=3", true, "value=1 value=2 value=3"},
        {"value=1", "value=enum:1", true, "value=1 value=enum:1"},
        // Collections in a set combine only if each is the only member.
        {"value{a=1}", "value{b=2}", true, "value{a=1 b=2}"},
        {"value{a=1} value{b=1}", "value{b=2}", true, "value{a=1} value{b=1} value{b=2}"},
        {"other{a=1}", "value{b=2}", true, "other{a=1} value{b=2}"},
        {"", "!a=1", true, "!a=1"},
    };
    for (const auto& [mine, other, asSet, merged] : rows) {
        AttrNodeList list = listOf(mine);
        list.merge(listOf(other), asSet);
        EXPECT_EQ(textOfList(list), merged) << mine << " and " << other;
    }
    AttrNodeList list = listOf("c{a=1} c{b=2}");
    list.merge(list, true);
    EXPECT_EQ(textOfList(list), "c{a=1} c{b=2}");
}

TEST(AttrNodeListTest, EmptyListsVanishAtAllDepths) {
    AttrNodeList list = listOf("a=1 c{s[]} r() b=name: x<> c{a=1 s[value{}]} d{}");
    list.removeEmptyLists();
    EXPECT_EQ(textOfList(list), "a=1 b=name: c{a=1}");
}

TEST(AttrNodeListTest, EqualNodesAreRemovedEverywhere) {
    const Rows<const char*, const char*, const char*> rows{
        {"a=1 b=1 a=1 !a=1 a=2", "a=1", "b=1 !a=1 a=2"},
        {"c{a=1} d{s[a=1] b=2} a=enum:1", "a=1", "d{b=2} a=enum:1"},
        {"c{b=1} c{a=1 b=2}", "c{x=5}", "c{a=1 b=2}"}, // lists are equal by their count
    };
    for (const auto& [before, removed, after] : rows) {
        AttrNodeList list = listOf(before);
        list.removeNodeEverywhere(listOf(removed).getNodeAt(0));
        EXPECT_EQ(textOfList(list), after) << before;
    }
    AttrNodeList list = listOf("a=1 c{a=1 b=2} a=1");
    list.removeNodeEverywhere(list.getNodeAt(2)); // which goes with the first round
    EXPECT_EQ(textOfList(list), "c{b=2}");
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

TEST(AttrValueTest, IsMadeFromText) {
    const Rows<const char16_t*, const char16_t*, AVTE, const char16_t*> rows{
        {u"integer", u" \t\r\n-7abc", AVTE_INTEGER, u"-7"},
        {u"integer", u"+5", AVTE_INTEGER, u"5"},
        {u"integer", u"- 5", AVTE_INTEGER, u"0"},
        {u"integer", u"", AVTE_INTEGER, u"0"},
        {u"integer", u"2147483648", AVTE_INTEGER, u"2147483647"},
        {u"integer", u"-999999999999999999999999", AVTE_INTEGER, u"-2147483648"},
        {u"enum", u"50", AVTE_ENUM, u"50"},
        {u"keyword", u" a b ", AVTE_KEYWORD, u" a b "},
        {u"name", u"", AVTE_NAME, u""},
        {u"text", u"t", AVTE_TEXT, u"t"},
        {u"mimeMediaType", u"a/b", AVTE_MIMEMEDIA, u"a/b"},
        {u"uri", u"file:x", AVTE_URI, u"file:x"},
        {u"boolean", u"yes", AVTE_BOOLEAN, u"true"},
        {u"boolean", u"1", AVTE_BOOLEAN, u"true"},
        {u"boolean", u"TRUE", AVTE_BOOLEAN, u"false"},
        {u"octetString", u"lost", AVTE_NULL, u""},
        {u"Integer", u"1", AVTE_NULL, u""},
    };
    for (const auto& [syntax, text, type, expected] : rows) {
        SCOPED_TRACE(CXString(syntax).toNarrow() + " " + CXString(text).toNarrow());
        const auto value = AttrValueFactory::createAttrValue(syntax, text);
        EXPECT_EQ(value->getAttrValueType(), type);
        EXPECT_EQ(value->getIppSyntax(), syntax); // also of what isn't known
        EXPECT_EQ(value->getIppValue(), expected);
        EXPECT_EQ(value->isSpacePreserved(), type == AVTE_NAME || type == AVTE_TEXT);
    }
}

} // namespace
} // namespace zent::test
