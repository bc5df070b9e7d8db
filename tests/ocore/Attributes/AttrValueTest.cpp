#include "ocore/Attributes/AttrValueFactory.h"
#include "ocore/Attributes/IppBoolean.h"
#include "ocore/Attributes/IppList.h"
#include "ocore/Attributes/IppNull.h"
#include "ocore/Attributes/PrimitiveInteger.h"
#include "ocore/Attributes/PrimitiveString.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

IppList list(const char* nodes, const CXString& syntax) { return {listOf(nodes), syntax}; }

TEST(AttrIDTest, IsNeverEmpty) {
    const char* const message = "AttrID::validateTheID(): supplied value is empty.\r\n";
    AttrID id(u"copies");
    EXPECT_EQ(raised<InvalidAttributeIdException>([] { AttrID{u""}; }), message);
    EXPECT_EQ(raised<InvalidAttributeIdException>([&] { id = CXString(); }), message);
    EXPECT_EQ(id.getText(), u"copies");
    EXPECT_LT(AttrID(u"Copies"), id); // by character code
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

TEST(AttrValueTest, ListsAreNotMadeFromText) {
    EXPECT_EQ(
        raised<UnknownCaseException>([] { AttrValueFactory::createAttrValue(u"1setOf", u"1"); }),
        "AttrValueFactory::createSimpleAttrValue(AVTE): unhandled attribute value enumeration "
        "(10).\r\n");
    for (const std::uint32_t type : {0U, 1U, 11U}) {
        EXPECT_THROW(AttrValueFactory::createSimpleAttrValue(static_cast<AVTE>(type), u"1"),
                     UnknownCaseException);
    }
    IppList collection = list("copies=1", syntax::collection);
    collection.setIppValue(u"2");
    EXPECT_EQ(textOfList(collection.getAttrNodeList()), "copies=1");
    EXPECT_EQ(collection.getIppValue(), u"");
}

TEST(AttrValueTest, TruthIsSetFromTwoTextsOnly) {
    IppBoolean truth(u"true");
    EXPECT_EQ(raised<UnknownCaseException>([&] { truth.setIppValue(u"yes"); }),
              "IppBoolean::setIppValue(): illegal attribute value string specified for this "
              "class(yes).\r\n");
    EXPECT_TRUE(truth.getValue());
    truth.setIppValue(u"false");
    EXPECT_FALSE(truth.getValue());
    EXPECT_FALSE(IppBoolean(u"false").getValue()); // a literal is text, not a pointer that is true
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
        {IppName(u"a"), IppName(u"A"), false},
        {IppName(u"a"), IppKeyword(u"a"), false},
        {IppName(u"a"), inactive, false},
        {IppBoolean(true), IppBoolean(u"1"), true},
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

TEST(AttrValueTest, RangesAndResolutionsAreRead) {
    // All parts are attempted, and what is missing stays as it was.
    using Numbers = std::vector<std::int32_t>;
    for (const auto& [nodes, found, expected] :
         Rows<const char*, bool, Numbers>{{"upper-bound=8", false, {-1, 8}},
                                          {"upper-bound=enum:9 lower-bound=3", true, {3, 9}}}) {
        Numbers read{-1, -1};
        EXPECT_EQ(list(nodes, syntax::rangeOfInteger).getRangeOfIntegerValues(read[0], read[1]),
                  found);
        EXPECT_EQ(read, expected);
    }
    Numbers read{-1, -1, -1};
    EXPECT_FALSE(
        list("units=4", syntax::resolution).getResolutionValues(read[0], read[1], read[2]));
    EXPECT_EQ(read, (Numbers{-1, -1, 4}));

    EXPECT_EQ(
        raised<AttributeTypeMismatchException>(
            [&] { list("", syntax::setOf).getRangeOfIntegerValues(read[0], read[1]); }),
        "AttrValue::getRangeOfIntegerValues: This AttrValue is not a rangeOfInteger list!!\r\n");
    EXPECT_EQ(raised<AttributeTypeMismatchException>(
                  [&] { IppInteger(1).getResolutionValues(read[0], read[1], read[2]); }),
              "AttrValue::getResolutionValues: This AttrValue is not a resolution list!!\r\n");
}

TEST(AttrValueTest, ResolutionsAreCompared) {
    const IppList complete = list("cross-feed=600 feed-direction=300 units=3", syntax::resolution);
    const Rows<const char*, bool> rows{
        {"units=3 feed-direction=300 cross-feed=600 comment=x", true},
        {"cross-feed=600 feed-direction=300 units=4", false},
        {"cross-feed=600 feed-direction=300", false},
    };
    for (const auto& [nodes, same] : rows) {
        EXPECT_EQ(complete.isSameResolution(list(nodes, syntax::resolution)), same) << nodes;
    }
    EXPECT_TRUE(list("cross-feed=1", syntax::resolution)
                    .isSameResolution(list("feed-direction=2", syntax::resolution)));
    EXPECT_FALSE(complete.isSameResolution(IppInteger(600)));
    EXPECT_FALSE(IppInteger(600).isSameResolution(complete));
}

} // namespace
} // namespace zent::test
