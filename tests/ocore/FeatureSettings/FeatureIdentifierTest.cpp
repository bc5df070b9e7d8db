#include <gtest/gtest.h>

#include "ocore/FeatureSettings/FeatureIdentifier.h"
#include "support/Raised.h"
#include "support/Rows.h"

namespace zent::test {
namespace {

TEST(FeatureIdentifierTest, FeaturesKnowTheirSetsAndParents) {
    const Rows<const char16_t*, bool, bool, FeatureEnum> rows{
        // Whether it is in a set, whether users define values, and the parent, 0 for none.
        {u"sides", false, false, 0},
        {u"imposition-template", false, true, 0},
        {u"page-ranges", true, false, 0},
        {u"save-location", false, true, 126}, // in a collection that is a member of a set
        {u"x-dimension", false, false, 113},
        {u"save-info", true, false, 125},
    };
    for (const auto& [id, inSet, userDefinable, expectedParent] : rows) {
        SCOPED_TRACE(CXString(id).toNarrow());
        const _FI feature{CXString(id)};
        EXPECT_EQ(feature.isInSetOf(), inSet);
        EXPECT_EQ(feature.isUserDefinable(), userDefinable);
        FeatureEnum parent = 0;
        EXPECT_EQ(feature.getParentFeature(&parent), expectedParent != 0);
        EXPECT_EQ(parent, expectedParent);
    }
    EXPECT_TRUE(_FI(97).isRelated(104));
    EXPECT_FALSE(_FI(97).isRelated(97));
}

TEST(FeatureIdentifierTest, UnknownFeaturesAreRefused) {
    using Unknown = UnknownFeatureRequestException;
    EXPECT_EQ(
        raised<Unknown>([] { _FI{CXString(u"value")}; }),
        "FeatureDataBase::getFeatureInfo( UniqueID ) could not find requested ID 'value'\r\n");
    EXPECT_THROW(_FI{CXString()}, InvalidAttributeIdException);
    EXPECT_EQ(raised<Unknown>([] { _FI::createFromAbbreviation(u"aA"); }),
              "FeatureDataBase::getFeatureInfoByAbbreviation() could not find requested ID "
              "'aA'\r\n");
    // Numbers aren't checked before they are used.
    EXPECT_EQ(raised<Unknown>([] { _FI(138).getAttrID(); }),
              "FeatureDataBase::getFeatureInfo( FeatureEnum ) could not find requested FeatureEnum "
              "138\r\n");
    EXPECT_TRUE(_FI::isFeature(137) && !_FI::isFeature(138) && !_FI::isFeature(TJTF_ANY));
    EXPECT_FALSE(_FI::isFeatureName(CXString()));
    EXPECT_FALSE(_FI::isFeatureAbbreviation(u"AT"));
}

} // namespace
} // namespace zent::test
