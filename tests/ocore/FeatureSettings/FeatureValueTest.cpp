#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "PrintText.h"
#include "ocore/Attributes/IppBoolean.h"
#include "ocore/Attributes/PrimitiveInteger.h"
#include "ocore/Attributes/PrimitiveString.h"
#include "ocore/FeatureSettings/FeatureValue.h"
#include "ocore/FeatureSettings/FeatureValueDataBase.h"
#include "support/Raised.h"
#include "support/Rows.h"

namespace zent::test {
namespace {

using Unknown = UnknownFeatureRequestException;
using Duplicate = DuplicateFeatureValueDBEntryException;

std::int32_t create(FeatureEnum feature, const CXString& text) {
    return FeatureValue::createNewValueEnum(feature, text, syntax::name, 0, 0, 0);
}

std::string unknownValue(const char* text, const char* feature) {
    return "FeatureValueDataBase::getFeatureValueInfo( Feature, Value ) could not find requested "
           "value '" +
           std::string(text) + "' for feature " + feature + ".\r\n";
}

std::string duplicate(const char* feature, const char* text) {
    return "FeatureValue::createNewValueEnum(): duplicate FVDB entry for feature " +
           std::string(feature) + " and value '" + text + "'.\r\n";
}

TEST(FeatureValueTest, TheFeatureDecidesWhichValueATextIs) {
    for (const auto& [feature, text, value] : Rows<FeatureEnum, const char16_t*, std::int32_t>{
             {5, u"none", 7}, {30, u"none", 20}, {82, u"top", 156}, {97, u"top", 457}}) {
        EXPECT_EQ(FeatureValue(feature, text).getValue(), value) << feature;
    }
    EXPECT_EQ(FeatureValue(7, u"none"), FeatureValue(11, u"none"));
    EXPECT_TRUE(FeatureValue(9).isShared());
    EXPECT_FALSE(FeatureValue(4).isShared());
    EXPECT_TRUE(FeatureValue().isShared()); // belongs to all features
    EXPECT_TRUE(FeatureValue(9).belongsTo(11));
    EXPECT_FALSE(FeatureValue(9).belongsTo(5));

    EXPECT_EQ(raised<Unknown>([] { FeatureValue(172).getText(); }),
              "FeatureValueDataBase::getFeatureValueInfo( ValueEnum ) could not find requested "
              "ValueEnum 172\r\n");
    EXPECT_EQ(raised<Unknown>([] { FeatureValue(4, u"folded"); }),
              unknownValue("folded", "'4' (sides)"));
    EXPECT_EQ(raised<Unknown>([] { FeatureValue(999, u""); }),
              unknownValue("", "'999' (<unknown>!)"));
    EXPECT_EQ(raised<Unknown>([] { FeatureValue::createFromAbbreviation(u""); }),
              "FeatureValueDataBase::getFeatureValueInfoByAbbreviation() could not find requested "
              "value for abbreviation ''.\r\n");
}

TEST(FeatureValueTest, ConvertsToTheSameTextOfAnotherFeature) {
    EXPECT_EQ(FeatureValue(7).convertToFeature(_FI(30)), FeatureValue(20));
    EXPECT_EQ(FeatureValue(4).convertToFeature(_FI(30)), FeatureValue());
    EXPECT_EQ(FeatureValue(9).convertToFeature(_FI(11)), FeatureValue(9));
    EXPECT_EQ(FeatureValue().convertToFeature(_FI(30)), FeatureValue());
    EXPECT_TRUE(FeatureValue(149).isSameInfo(FeatureValue(149)));
    EXPECT_FALSE(FeatureValue(183).isSameInfo(FeatureValue(189))); // other abbreviations
}

TEST(FeatureValueTest, NewValuesAreSharedByRelatedFeatures) {
    const std::int32_t number = create(97, u"foo");
    EXPECT_GE(number, 553);
    EXPECT_EQ(create(21, u"bar"), number + 1);
    for (const FeatureEnum feature : {97U, 98U, 104U}) {
        EXPECT_EQ(FeatureValue(feature, u"foo").getValue(), number);
    }
    const FeatureValue value(number);
    EXPECT_TRUE(value.isRunTimeValue());
    EXPECT_FALSE(FeatureValue(552).isRunTimeValue());
    EXPECT_EQ(value.getType(), AVTE_NAME); // by its syntax
    EXPECT_EQ(value.getAbbreviation(), u"");
    EXPECT_EQ(value.getDisplayString(), u"foo");
    EXPECT_EQ(raised<Duplicate>([] { create(97, u"foo"); }), duplicate("97", "foo"));
    EXPECT_THROW(create(104, u"foo"), Duplicate);
    // Also what just one of the related features has.
    FeatureValueDataBase().addValue(
        {900000, {35}, u"only-images", {}, 0, 0, syntax::name, AVTE_NAME});
    EXPECT_THROW(create(34, u"only-images"), Duplicate);
    EXPECT_FALSE(FeatureValue::isKnownValue(34, u"only-images"));
    EXPECT_THROW(create(TJTF_ANY, u"foo"), Unknown);
}

TEST(FeatureValueTest, FixedValuesComeBeforeThoseOfTheRunTime) {
    const FeatureValue z(create(21, u"order-z"));
    const FeatureValue y(create(21, u"order-y"));
    EXPECT_LT(y, z); // by name, though it is the newer
    EXPECT_FALSE(z < y);
    EXPECT_LT(FeatureValue(552), y);
    EXPECT_LT(FeatureValue(4), FeatureValue(5));
}

TEST(FeatureValueTest, AttributesBringNewValuesIfTheFeatureAllowsIt) {
    const _FI media(97);
    const FeatureValue known = FeatureValue::fromAttrValue(media, IppKeyword(u"default"));
    EXPECT_EQ(known.getValue(), 200);
    EXPECT_EQ(FeatureValue::fromAttrValue(media, IppName(u"default")), known);
    const FeatureValue made = FeatureValue::fromAttrValue(media, IppName(u"my stock"));
    EXPECT_TRUE(made.isRunTimeValue());
    EXPECT_EQ(made.getSyntax(), u"name");
    EXPECT_EQ(FeatureValue::fromAttrValue(media, IppName(u"my stock")), made);
    EXPECT_EQ(FeatureValue::fromAttrValue(_FI(10), IppUri(u"file:a")).getSyntax(), u"uri");
    EXPECT_EQ(FeatureValue::fromAttrValue(_FI(105), IppInteger(3)).getValue(), 182);

    EXPECT_THROW(FeatureValue::fromAttrValue(media, IppKeyword(u"no such")), Unknown);
    EXPECT_THROW(FeatureValue::fromAttrValue(media, IppUri(u"file:a")), Unknown);
    EXPECT_THROW(FeatureValue::fromAttrValue(_FI(feature::sides), IppName(u"x")), Unknown);
    EXPECT_THROW(FeatureValue::fromAttrValue(_FI(24), IppText(u"x")), Unknown);
    EXPECT_THROW(FeatureValue::fromAttrValue(_FI(feature::copies), IppInteger(1)), Unknown);

    // Text alone takes the feature's preferred syntax.
    EXPECT_EQ(FeatureValue::fromText(media, u"another").getSyntax(), u"name");
    EXPECT_EQ(FeatureValue::fromText(media, u"default"), known);
    EXPECT_THROW(FeatureValue::fromText(_FI(feature::sides), u"x"), Unknown);
}

TEST(FeatureValueTest, NewValuesAreOfBoundedLength) {
    const std::u16string longest(4096, u'x');
    EXPECT_NO_THROW(create(21, CXString(longest)));
    EXPECT_THROW(create(21, CXString(longest + u"x")), Unknown);
    EXPECT_THROW(FeatureValue::fromText(_FI(21), CXString(longest + u"y")), Unknown);
}

/// In a process of its own, which it leaves without a number for anyone.
TEST(FeatureValueDeathTest, NewValuesAreOfBoundedNumber) {
    const auto exhaust = [] {
        std::int32_t count = 0;
        try {
            for (; count < 100000; ++count) {
                create(21, CXString::Format(u"%d", count));
            }
        } catch (const Unknown&) {
            const bool isKept = FeatureValue(21, u"0").isRunTimeValue();
            std::exit(count > 65000 && count <= 65536 && isKept ? 0 : 1);
        }
        std::exit(2);
    };
    EXPECT_EXIT(exhaust(), testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace zent::test
