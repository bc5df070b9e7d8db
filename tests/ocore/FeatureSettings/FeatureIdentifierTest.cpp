#include <gtest/gtest.h>

#include "PrintText.h"
#include "ocore/FeatureSettings/FeatureIdentifier.h"
#include "resources/UseResourceLibrary.h"
#include "support/Raised.h"
#include "support/Rows.h"

namespace zent::test {
namespace {

TEST(FeatureIdentifierTest, QueriesGoToTheTable) {
    const Rows<const char16_t*, const char16_t*, FeatureEnum, bool, bool, const char16_t*,
               FeatureEnum>
        rows{
            // The parent is 0 for none.
            {u"sides", u"sides", 4, false, false, u"keyword", 0},
            {u"imposition-template", u"imposition-template", 5, false, true, u"name", 0},
            {u"page-ranges", u"value", 6, true, false, u"rangeOfInteger", 0},
            // In a collection that is a member of a set.
            {u"save-location", u"save-location", 10, false, true, u"uri", 126},
            {u"x-dimension", u"x-dimension", 99, false, false, u"integer", 113},
            {u"save-info", u"value", 126, true, false, u"collection", 125},
        };
    for (const auto& [id, leaf, number, inSet, userDefinable, syntax, expectedParent] : rows) {
        SCOPED_TRACE(number);
        const _FI feature{CXString(id)};
        EXPECT_EQ(feature.getFeature(), number);
        EXPECT_EQ(feature.getIDAsAttrID().getText(), id);
        EXPECT_EQ(feature.getAttrID().getText(), leaf);
        EXPECT_EQ(feature.isInSetOf(), inSet);
        EXPECT_EQ(feature.isUserDefinable(), userDefinable);
        EXPECT_EQ(feature.getPreferredSyntax(), syntax);
        FeatureEnum parent = 0;
        EXPECT_EQ(feature.getParentFeature(&parent), expectedParent != 0);
        EXPECT_EQ(parent, expectedParent);
        EXPECT_TRUE(_FI::createFromAbbreviation(feature.getAbbreviation()).isEqual(feature));
        EXPECT_FALSE(feature.isEqual(_FI(number + 1)));
    }
    useResourceLibrary();
    EXPECT_EQ(_FI(feature::copies).getDisplayString(), ResourceLibrary().getString(5220));
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

TEST(SyntaxListTest, TakesTheSecondAndThirdOnlyIfGiven) {
    const SyntaxList::Entry keyword{u"keyword", AVTE_KEYWORD};
    const SyntaxList::Entry name{u"name", AVTE_NAME};
    const SyntaxList::Entry none{u"", AVTE_NULL};
    const Rows<SyntaxList, std::uint32_t> rows{{{keyword, none, none}, 1},
                                               {{keyword, name, none}, 2},
                                               {{keyword, name, name}, 3},
                                               {{keyword, none, name}, 1}};
    for (const auto& [list, count] : rows) {
        EXPECT_EQ(list.getSyntaxCount(), count);
        EXPECT_EQ(list.isMultiple(), count > 1);
        EXPECT_EQ(list.hasAVTE(AVTE_NAME), count > 1);
        EXPECT_EQ(list.hasSyntax(u"name"), count > 1);
    }
}

} // namespace
} // namespace zent::test
