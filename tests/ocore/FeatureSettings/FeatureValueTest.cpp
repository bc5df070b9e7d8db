#include "ocore/FeatureSettings/FeatureValue.h"
#include "ocore/Attributes/IppBoolean.h"
#include "ocore/Attributes/PrimitiveInteger.h"
#include "ocore/Attributes/PrimitiveString.h"
#include "ocore/FeatureSettings/FeatureValueDataBase.h"
#include "support/LibraryTesting.h"

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
             {feature::impositionTemplate, u"none", value::impositionNone},
             {feature::antiAliasing, u"none", value::antiAliasingNone},
             {feature::outputBin, u"top", value::binTop},
             {feature::media, u"top", value::mediaNameTop}}) {
        EXPECT_EQ(FeatureValue(feature, text).getValue(), value) << feature;
    }
    EXPECT_EQ(FeatureValue(feature::saveDisposition, u"none"),
              FeatureValue(feature::formSaveDisposition, u"none"));
    EXPECT_TRUE(FeatureValue(value::saveNone).isShared());
    EXPECT_FALSE(FeatureValue(value::oneSided).isShared());
    EXPECT_TRUE(FeatureValue().isShared()); // belongs to all features
    EXPECT_TRUE(FeatureValue(value::saveNone).belongsTo(feature::formSaveDisposition));
    EXPECT_FALSE(FeatureValue(value::saveNone).belongsTo(feature::impositionTemplate));

    EXPECT_EQ(raised<Unknown>([] { FeatureValue(172).getText(); }),
              "FeatureValueDataBase::getFeatureValueInfo( ValueEnum ) could not find requested "
              "ValueEnum 172\r\n");
    EXPECT_EQ(raised<Unknown>([] { FeatureValue(feature::sides, u"folded"); }),
              unknownValue("folded", "'4' (sides)"));
    EXPECT_EQ(raised<Unknown>([] { FeatureValue(FeatureEnum(999), u""); }),
              unknownValue("", "'999' (<unknown>!)"));
    EXPECT_EQ(raised<Unknown>([] { FeatureValue::createFromAbbreviation(u""); }),
              "FeatureValueDataBase::getFeatureValueInfoByAbbreviation() could not find requested "
              "value for abbreviation ''.\r\n");
}

TEST(FeatureValueTest, ConvertsToTheSameTextOfAnotherFeature) {
    EXPECT_EQ(FeatureValue(value::impositionNone).convertToFeature(_FI(feature::antiAliasing)),
              FeatureValue(value::antiAliasingNone));
    EXPECT_EQ(FeatureValue(value::oneSided).convertToFeature(_FI(feature::antiAliasing)),
              FeatureValue());
    EXPECT_EQ(FeatureValue(value::saveNone).convertToFeature(_FI(feature::formSaveDisposition)),
              FeatureValue(value::saveNone));
    EXPECT_EQ(FeatureValue().convertToFeature(_FI(feature::antiAliasing)), FeatureValue());
    EXPECT_TRUE(FeatureValue(value::separatorSlipSheets)
                    .isSameInfo(FeatureValue(value::separatorSlipSheets)));
    EXPECT_FALSE(FeatureValue(value::frontCoatingNone)
                     .isSameInfo(FeatureValue(value::backCoatingNone))); // other abbreviations
}

TEST(FeatureValueTest, NewValuesAreSharedByRelatedFeatures) {
    const FeatureValue value = create(feature::media, u"foo");
    EXPECT_GE(value.getValue(), value::firstRunTimeValue);
    EXPECT_EQ(create(feature::jobName, u"bar").getValue(), value.getValue() + 1);
    for (const FeatureEnum feature :
         {feature::media, feature::mediaKey, feature::mediaDescription}) {
        EXPECT_EQ(FeatureValue(feature, u"foo"), value);
    }
    EXPECT_TRUE(value.isRunTimeValue());
    EXPECT_FALSE(FeatureValue(value::paperSource6).isRunTimeValue());
    EXPECT_EQ(value.getType(), AVTE_NAME); // by its syntax
    EXPECT_EQ(value.getAbbreviation(), u"");
    EXPECT_EQ(value.getDisplayString(), u"foo");
    EXPECT_EQ(raised<Duplicate>([] { create(feature::media, u"foo"); }), duplicate("97", "foo"));
    EXPECT_THROW(create(feature::mediaDescription, u"foo"), Duplicate);
    // Also what just one of the related features has.
    FeatureValueDataBase().addValue(
        {900000, {feature::halftoneImages}, u"only-images", {}, 0, 0, syntax::name, AVTE_NAME});
    EXPECT_THROW(create(feature::halftoneGraphics, u"only-images"), Duplicate);
    EXPECT_FALSE(FeatureValue::isKnownValue(feature::halftoneGraphics, u"only-images"));
    EXPECT_THROW(create(TJTF_ANY, u"foo"), Unknown);
}

TEST(FeatureValueTest, FixedValuesComeBeforeThoseOfTheRunTime) {
    const FeatureValue z = create(feature::jobName, u"order-z");
    const FeatureValue y = create(feature::jobName, u"order-y");
    EXPECT_LT(y, z); // by name, though it is the newer
    EXPECT_FALSE(z < y);
    EXPECT_LT(FeatureValue(value::paperSource6), y);
    EXPECT_LT(FeatureValue(value::oneSided), FeatureValue(value::twoSidedLongEdge));
}

TEST(FeatureValueTest, AttributesBringNewValuesIfTheFeatureAllowsIt) {
    const _FI media(feature::media);
    const FeatureValue known = FeatureValue::fromAttrValue(media, IppKeyword(u"default"));
    EXPECT_EQ(known.getValue(), 200);
    EXPECT_EQ(FeatureValue::fromAttrValue(media, IppName(u"default")), known);
    const FeatureValue made = FeatureValue::fromAttrValue(media, IppName(u"my stock"));
    EXPECT_TRUE(made.isRunTimeValue());
    EXPECT_EQ(made.getSyntax(), u"name");
    EXPECT_EQ(FeatureValue::fromAttrValue(media, IppName(u"my stock")), made);
    EXPECT_EQ(
        FeatureValue::fromAttrValue(_FI(feature::saveLocation), IppUri(u"file:a")).getSyntax(),
        u"uri");
    EXPECT_EQ(FeatureValue::fromAttrValue(_FI(feature::mediaHoleCount), IppInteger(3)).getValue(),
              182);

    EXPECT_THROW(FeatureValue::fromAttrValue(media, IppKeyword(u"no such")), Unknown);
    EXPECT_THROW(FeatureValue::fromAttrValue(media, IppUri(u"file:a")), Unknown);
    EXPECT_THROW(FeatureValue::fromAttrValue(_FI(feature::sides), IppName(u"x")), Unknown);
    EXPECT_THROW(FeatureValue::fromAttrValue(_FI(feature::jobAccountingData), IppText(u"x")),
                 Unknown);
    EXPECT_THROW(FeatureValue::fromAttrValue(_FI(feature::copies), IppInteger(1)), Unknown);

    // Text alone takes the feature's preferred syntax.
    EXPECT_EQ(FeatureValue::fromText(media, u"another").getSyntax(), u"name");
    EXPECT_EQ(FeatureValue::fromText(media, u"default"), known);
    EXPECT_THROW(FeatureValue::fromText(_FI(feature::sides), u"x"), Unknown);
}

TEST(FeatureValueTest, NewValuesAreOfBoundedLength) {
    const std::u16string longest(4096, u'x');
    EXPECT_NO_THROW(create(feature::jobName, CXString(longest)));
    EXPECT_THROW(create(feature::jobName, CXString(longest + u"x")), Unknown);
    EXPECT_THROW(FeatureValue::fromText(_FI(feature::jobName), CXString(longest + u"y")), Unknown);
}

TEST(FeatureValueTest, WhatNothingHoldsIsForgottenLeastRecentlyUsedFirst) {
    const FeatureValue held = create(feature::jobName, u"held");
    const FeatureValue copy = FeatureValue(FeatureValue(held)); // the others go at once
    const std::int32_t used = create(feature::jobName, u"used").getValue();
    const std::int32_t unused = create(feature::jobName, u"unused").getValue();
    constexpr std::int32_t others = 70000;
    const auto name = [](std::int32_t i) { return CXString::Format(u"other %d", i); };
    for (std::int32_t i = 0; i < others; ++i) {
        create(feature::jobName, name(i));
        ASSERT_EQ(FeatureValue(feature::jobName, u"used").getValue(), used) << i;
    }
    EXPECT_EQ(FeatureValue(feature::jobName, u"held"), held);
    EXPECT_EQ(held.getText(), u"held");
    EXPECT_FALSE(FeatureValue::isKnownValue(feature::jobName, u"unused"));
    EXPECT_FALSE(FeatureValue::isValidNumber(unused));
    EXPECT_THROW(FeatureValue(unused).getText(), Unknown);
    // The latest are those that are remembered, "used" among them.
    EXPECT_TRUE(FeatureValue::isKnownValue(feature::jobName, name(others - 16383)));
    EXPECT_FALSE(FeatureValue::isKnownValue(feature::jobName, name(others - 16384)));
    // A number never comes again, nor does that of a text which does.
    const FeatureValue last = FeatureValue::fromText(_FI(feature::jobName), u"last");
    EXPECT_GT(FeatureValue::fromText(_FI(feature::jobName), u"unused").getValue(), last.getValue());
}

} // namespace
} // namespace zent::test
