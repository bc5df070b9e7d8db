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

FeatureValue create(FeatureEnum feature, const CXString& text) {
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
    const FeatureValue value = create(97, u"foo");
    EXPECT_GE(value.getValue(), 553);
    EXPECT_EQ(create(21, u"bar").getValue(), value.getValue() + 1);
    for (const FeatureEnum feature : {97U, 98U, 104U}) {
        EXPECT_EQ(FeatureValue(feature, u"foo"), value);
    }
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
    const FeatureValue z = create(21, u"order-z");
    const FeatureValue y = create(21, u"order-y");
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

TEST(FeatureValueTest, WhatNothingHoldsIsForgottenLeastRecentlyUsedFirst) {
    const FeatureValue held = create(21, u"held");
    const FeatureValue copy = FeatureValue(FeatureValue(held)); // the others go at once
    const std::int32_t used = create(21, u"used").getValue();
    const std::int32_t unused = create(21, u"unused").getValue();
    constexpr std::int32_t others = 70000;
    const auto name = [](std::int32_t i) { return CXString::Format(u"other %d", i); };
    for (std::int32_t i = 0; i < others; ++i) {
        create(21, name(i));
        ASSERT_EQ(FeatureValue(21, u"used").getValue(), used) << i;
    }
    EXPECT_EQ(FeatureValue(21, u"held"), held);
    EXPECT_EQ(held.getText(), u"held");
    EXPECT_FALSE(FeatureValue::isKnownValue(21, u"unused"));
    EXPECT_FALSE(FeatureValue::isValidNumber(unused));
    EXPECT_THROW(FeatureValue(unused).getText(), Unknown);
    // The latest are those that are remembered, "used" among them.
    EXPECT_TRUE(FeatureValue::isKnownValue(21, name(others - 16383)));
    EXPECT_FALSE(FeatureValue::isKnownValue(21, name(others - 16384)));
    // A number never comes again, nor does that of a text which does.
    const FeatureValue last = FeatureValue::fromText(_FI(21), u"last");
    EXPECT_GT(FeatureValue::fromText(_FI(21), u"unused").getValue(), last.getValue());
}

} // namespace
} // namespace zent::test
