#include "ocore/FeatureSettings/FeatureValue.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/FeatureSettings/FeatureValueDataBase.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

using Unknown = UnknownFeatureRequestException;
using Duplicate = DuplicateFeatureValueDBEntryException;

FeatureValue create(FeatureEnum feature, const CXString& text) {
    return FeatureValue::createNewValueEnum(feature, text, syntax::name, 0, 0, 0);
}

TEST(FeatureValueTest, NewValuesAreSharedByRelatedFeatures) {
    const FeatureValue value = create(feature::media, u"foo");
    EXPECT_GE(value.getValue(), value::firstRunTimeValue);
    EXPECT_EQ(create(feature::jobName, u"bar").getValue(), value.getValue() + 1);
    for (const FeatureEnum feature :
         {feature::media, feature::mediaKey, feature::mediaDescription}) {
        EXPECT_EQ(FeatureValue(feature, u"foo"), value);
    }
    EXPECT_EQ(raised<Duplicate>([] { create(feature::media, u"foo"); }),
              "FeatureValue::createNewValueEnum(): duplicate FVDB entry for feature 97 and value "
              "'foo'.\r\n");
    EXPECT_THROW(create(feature::mediaDescription, u"foo"), Duplicate);
    // Also what just one of the related features has.
    FeatureValueDataBase().addValue(
        {900000, {feature::halftoneImages}, u"only-images", {}, 0, 0, syntax::name, AVTE_NAME});
    EXPECT_THROW(create(feature::halftoneGraphics, u"only-images"), Duplicate);
    EXPECT_FALSE(FeatureValue::isKnownValue(feature::halftoneGraphics, u"only-images"));
    EXPECT_THROW(create(TJTF_ANY, u"foo"), Unknown);
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
