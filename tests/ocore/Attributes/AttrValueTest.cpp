#include <gtest/gtest.h>

#include "PrintText.h"
#include "ocore/Attributes/AttrValueFactory.h"
#include "ocore/Attributes/IppBoolean.h"
#include "ocore/Attributes/IppList.h"
#include "ocore/Attributes/IppNull.h"
#include "ocore/Attributes/PrimitiveInteger.h"
#include "ocore/Attributes/PrimitiveString.h"
#include "support/ListText.h"
#include "support/Raised.h"

namespace zent::test {
namespace {

IppList list(const char* nodes, const CXString& syntax) { return {listOf(nodes), syntax}; }

TEST(AttrIDTest, IsNeverEmpty) {
    const char* const message = "AttrID::validateTheID(): supplied value is empty.\r\n";
    AttrID id(u"copies");
    EXPECT_EQ(raised<InvalidAttributeIdException>([] { AttrID{CXString()}; }), message);
    EXPECT_EQ(raised<InvalidAttributeIdException>([] { AttrID{u""}; }), message);
    EXPECT_EQ(raised<InvalidAttributeIdException>([&] { id = CXString(); }), message);
    EXPECT_EQ(id.getText(), u"copies");
    id = CXString(u"Copies");
    EXPECT_LT(id, AttrID(u"copies")); // by character code
    EXPECT_NE(id, AttrID(u"copies"));
}

TEST(AttrValueTest, IsMadeFromText) {
    struct Row {
        const char16_t* syntax;
        const char16_t* text;
        AVTE type;
        bool spacePreserved;
        const char16_t* value;
    };
    const Row rows[] = {
        {u"integer", u"12", AVTE_INTEGER, false, u"12"},
        {u"integer", u" \t\r\n-7abc", AVTE_INTEGER, false, u"-7"},
        {u"integer", u"+5", AVTE_INTEGER, false, u"5"},
        {u"integer", u"- 5", AVTE_INTEGER, false, u"0"},
        {u"integer", u"many", AVTE_INTEGER, false, u"0"},
        {u"integer", u"", AVTE_INTEGER, false, u"0"},
        {u"integer", u"-", AVTE_INTEGER, false, u"0"},
        {u"integer", u"2147483648", AVTE_INTEGER, false, u"2147483647"},
        {u"integer", u"-2147483648", AVTE_INTEGER, false, u"-2147483648"},
        {u"integer", u"-999999999999999999999999", AVTE_INTEGER, false, u"-2147483648"},
        {u"enum", u"50", AVTE_ENUM, false, u"50"},
        {u"keyword", u" a b ", AVTE_KEYWORD, false, u" a b "},
        {u"name", u"", AVTE_NAME, true, u""},
        {u"text", u"t", AVTE_TEXT, true, u"t"},
        {u"mimeMediaType", u"a/b", AVTE_MIMEMEDIA, false, u"a/b"},
        {u"uri", u"file:x", AVTE_URI, false, u"file:x"},
        {u"boolean", u"true", AVTE_BOOLEAN, false, u"true"},
        {u"boolean", u"yes", AVTE_BOOLEAN, false, u"true"},
        {u"boolean", u"1", AVTE_BOOLEAN, false, u"true"},
        {u"boolean", u"TRUE", AVTE_BOOLEAN, false, u"false"},
        {u"boolean", u"", AVTE_BOOLEAN, false, u"false"},
        {u"octetString", u"lost", AVTE_NULL, false, u""},
        {u"Integer", u"1", AVTE_NULL, false, u""},
        {u"", u"1", AVTE_NULL, false, u""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(CXString(row.syntax).toNarrow() + " " + CXString(row.text).toNarrow());
        const auto value = AttrValueFactory::createAttrValue(row.syntax, row.text);
        EXPECT_EQ(value->getAttrValueType(), row.type);
        EXPECT_EQ(value->getIppSyntax(), row.syntax); // also of what isn't known
        EXPECT_EQ(value->getIppValue(), row.value);
        EXPECT_EQ(value->isSpacePreserved(), row.spacePreserved);
        EXPECT_TRUE(value->isActive());
        EXPECT_EQ(value->isPrimitiveInteger(),
                  dynamic_cast<const PrimitiveInteger*>(value.get()) != nullptr);
        EXPECT_EQ(value->isPrimitiveString(),
                  dynamic_cast<const PrimitiveString*>(value.get()) != nullptr);
    }
}

TEST(AttrValueTest, ListsAreNotMadeFromText) {
    const auto messageOf = [](const char* number) {
        return "AttrValueFactory::createSimpleAttrValue(AVTE): unhandled attribute value "
               "enumeration (" +
               std::string(number) + ").\r\n";
    };
    for (const char16_t* syntax : {u"1setOf", u"collection", u"rangeOfInteger", u"resolution"}) {
        EXPECT_EQ(syntaxToAVTE(syntax), AVTE_LIST);
        EXPECT_EQ(
            raised<UnknownCaseException>([&] { AttrValueFactory::createAttrValue(syntax, u"1"); }),
            messageOf("10"));
    }
    for (const std::uint32_t type : {0U, 1U, 10U, 11U}) {
        EXPECT_EQ(raised<UnknownCaseException>([&] {
                      AttrValueFactory::createSimpleAttrValue(static_cast<AVTE>(type), u"1");
                  }),
                  messageOf(std::to_string(type).c_str()));
    }
    EXPECT_EQ(AVTEToString(AVTE_MIMEMEDIA), u"AVTE_MIMEMEDIA");
    EXPECT_EQ(AVTEToString(static_cast<AVTE>(0)), u"UNKNOWN!");
}

TEST(AttrValueTest, IsSetFromText) {
    IppBoolean truth(u"true");
    EXPECT_EQ(raised<UnknownCaseException>([&] { truth.setIppValue(u"yes"); }),
              "IppBoolean::setIppValue(): illegal attribute value string specified for this "
              "class(yes).\r\n");
    EXPECT_TRUE(truth.getValue());
    truth.setIppValue(u"false");
    EXPECT_FALSE(truth.getValue());
    EXPECT_FALSE(IppBoolean(u"false").getValue()); // a literal is text, not a pointer that is true

    IppInteger number(7);
    number.setIppValue(u"x");
    EXPECT_EQ(number.getValue(), 0);
    IppName name(u"old");
    name.setIppValue(u"new");
    EXPECT_EQ(name.getValue(), u"new");
    IppList collection = list("copies=1", syntax::collection);
    collection.setIppValue(u"2");
    EXPECT_EQ(textOfList(collection.getAttrNodeList()), "copies=1");
    EXPECT_EQ(collection.getIppValue(), u"");
}

TEST(AttrValueTest, Equality) {
    IppName inactive(u"a");
    inactive.setActive(false);
    struct Row {
        const AttrValue& a;
        const AttrValue& b;
        bool equal;
    };
    const Row rows[] = {
        {IppInteger(5), IppInteger(5), true},
        {IppInteger(5), IppInteger(6), false},
        {IppInteger(5), IppEnum(5), false},
        {IppName(u"a"), IppName(u"a"), true},
        {IppName(u"a"), IppName(u"A"), false},
        {IppName(u"a"), IppKeyword(u"a"), false},
        {IppName(u"a"), inactive, false},
        {IppBoolean(true), IppBoolean(u"1"), true},
        {IppNull(u"x"), IppNull(u"x"), true},
        {IppNull(u"x"), IppNull(u"y"), false},
        // Of the content of lists only the count decides.
        {list("a=1", syntax::collection), list("b=x", syntax::collection), true},
        {list("a=1", syntax::collection), list("", syntax::collection), false},
        {list("a=1", syntax::collection), list("a=1", syntax::setOf), false},
        {IppList(), list("", syntax::setOf), true},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(row.a.isEqual(row.b), row.equal) << &row - rows;
        EXPECT_EQ(row.b.isEqual(row.a), row.equal) << &row - rows;
        EXPECT_TRUE(row.a.clone()->isEqual(row.a)) << &row - rows;
    }
    EXPECT_FALSE(inactive.clone()->isActive());
}

TEST(AttrValueTest, ClonesOfListsAreDeep) {
    const IppList original = list("media-col{media-color=red}", syntax::collection);
    const auto clone = original.clone();
    auto& nodes = static_cast<IppList&>(*clone).getAttrNodeList();
    nodes.getNodeAt(0).getAttrValue().setActive(false);
    static_cast<IppList&>(nodes.getNodeAt(0).getAttrValue()).getAttrNodeList().removeAllNodes();
    EXPECT_EQ(textOfList(original.getAttrNodeList()), "media-col{media-color=red}");
    EXPECT_TRUE(original.getAttrNodeList().getNodeAt(0).getAttrValue().isActive());
}

TEST(AttrValueTest, RangesAreRead) {
    struct Row {
        const char* nodes;
        bool complete;
        std::int32_t lower;
        std::int32_t upper;
    };
    const Row rows[] = {
        {"lower-bound=3 upper-bound=9", true, 3, 9},
        {"upper-bound=enum:9 lower-bound=3", true, 3, 9},
        {"upper-bound=9", false, -1, 9},
        {"lower-bound=3", false, 3, -1},
        {"", false, -1, -1},
    };
    for (const Row& row : rows) {
        std::int32_t lower = -1;
        std::int32_t upper = -1;
        const IppList range = list(row.nodes, syntax::rangeOfInteger);
        EXPECT_EQ(range.getRangeOfIntegerValues(lower, upper), row.complete) << row.nodes;
        EXPECT_EQ(lower, row.lower) << row.nodes;
        EXPECT_EQ(upper, row.upper) << row.nodes;
    }
    std::int32_t bound = 0;
    EXPECT_EQ(
        raised<AttributeTypeMismatchException>([&] {
            list("lower-bound=3 upper-bound=9", syntax::setOf)
                .getRangeOfIntegerValues(bound, bound);
        }),
        "AttrValue::getRangeOfIntegerValues: This AttrValue is not a rangeOfInteger list!!\r\n");
}

TEST(AttrValueTest, ResolutionsAreReadAndCompared) {
    const auto resolution = [](const char* nodes) { return list(nodes, syntax::resolution); };
    const IppList complete = resolution("cross-feed=600 feed-direction=300 units=3");
    std::int32_t crossFeed = 0;
    std::int32_t feedDirection = 0;
    std::int32_t units = 0;
    EXPECT_TRUE(complete.getResolutionValues(crossFeed, feedDirection, units));
    EXPECT_EQ(crossFeed, 600);
    EXPECT_EQ(feedDirection, 300);
    EXPECT_EQ(units, 3);
    EXPECT_FALSE(resolution("units=4").getResolutionValues(crossFeed, feedDirection, units));
    EXPECT_EQ(crossFeed, 600); // all three are attempted, and what is missing stays as it was
    EXPECT_EQ(units, 4);
    EXPECT_EQ(raised<AttributeTypeMismatchException>(
                  [&] { IppInteger(1).getResolutionValues(crossFeed, feedDirection, units); }),
              "AttrValue::getResolutionValues: This AttrValue is not a resolution list!!\r\n");

    EXPECT_TRUE(complete.isSameResolution(
        resolution("units=3 feed-direction=300 cross-feed=600 comment=x")));
    EXPECT_FALSE(
        complete.isSameResolution(resolution("cross-feed=600 feed-direction=300 units=4")));
    EXPECT_FALSE(complete.isSameResolution(resolution("cross-feed=600 feed-direction=300")));
    EXPECT_TRUE(resolution("cross-feed=1").isSameResolution(resolution("feed-direction=2")));
    EXPECT_FALSE(complete.isSameResolution(IppInteger(600)));
    EXPECT_FALSE(IppInteger(600).isSameResolution(complete));
}

} // namespace
} // namespace zent::test
