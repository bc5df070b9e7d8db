#include "ocore/FeatureSettings/FeatureIdentifier.h"

#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

TEST(FeatureIdentifierTest, FeaturesKnowTheirSetsAndParents) {
    const Rows<const char16_t*, bool, bool, FeatureEnum> rows{
        // Whether it is in a set, whether users define values, and the parent if any.
        {u"sides", false, false, feature::none},
        {u"imposition-template", false, true, feature::none},
        {u"page-ranges", true, false, feature::none},
        {u"save-location", false, true,
         feature::saveInfo}, // in a collection that is a member of a set
        {u"x-dimension", false, false, feature::mediaSize},
        {u"save-info", true, false, feature::jobSaveDisposition},
    };
    for (const auto& [id, inSet, userDefinable, expectedParent] : rows) {
        SCOPED_TRACE(CXString(id).toNarrow());
        const _FI feature{CXString(id)};
        EXPECT_EQ(feature.isInSetOf(), inSet);
        EXPECT_EQ(feature.isUserDefinable(), userDefinable);
        FeatureEnum parent = feature::none;
        EXPECT_EQ(feature.getParentFeature(&parent), expectedParent != feature::none);
        EXPECT_EQ(parent, expectedParent);
    }
    EXPECT_TRUE(_FI(feature::media).isRelated(feature::mediaDescription));
    EXPECT_FALSE(_FI(feature::media).isRelated(feature::media));
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
    EXPECT_EQ(raised<Unknown>([] { _FI(FeatureEnum(feature::last + 1)).getAttrID(); }),
              "FeatureDataBase::getFeatureInfo( FeatureEnum ) could not find requested FeatureEnum "
              "138\r\n");
    EXPECT_TRUE(_FI::isFeature(feature::last) && !_FI::isFeature(FeatureEnum(feature::last + 1)) &&
                !_FI::isFeature(TJTF_ANY));
    EXPECT_FALSE(_FI::isFeatureName(CXString()));
    EXPECT_FALSE(_FI::isFeatureAbbreviation(u"AT"));
}

} // namespace
} // namespace zent::test
