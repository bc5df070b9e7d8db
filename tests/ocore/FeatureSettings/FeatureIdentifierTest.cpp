#include <gtest/gtest.h>

#include "PrintText.h"
#include "ocore/FeatureSettings/FeatureIdentifier.h"
#include "resources/UseResourceLibrary.h"
#include "support/Raised.h"

namespace zent::test {
namespace {

TEST(FeatureIdentifierTest, QueriesGoToTheTable) {
    struct Row {
        const char16_t* id;
        const char16_t* leaf;
        FeatureEnum number;
        bool inSet;
        bool userDefinable;
        const char16_t* preferredSyntax;
        FeatureEnum parent; // 0 for none
    };
    const Row rows[] = {
        {u"copies", u"copies", 2, false, false, u"integer", 0},
        {u"sides", u"sides", 4, false, false, u"keyword", 0},
        {u"imposition-template", u"imposition-template", 5, false, true, u"name", 0},
        {u"page-ranges", u"value", 6, true, false, u"rangeOfInteger", 0},
        // In a collection that is a member of a set.
        {u"save-location", u"save-location", 10, false, true, u"uri", 126},
        {u"x-dimension", u"x-dimension", 99, false, false, u"integer", 113},
        {u"media-size", u"media-size", 113, false, false, u"collection", 133},
        {u"save-info", u"value", 126, true, false, u"collection", 125},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(CXString(row.id).toNarrow());
        const _FI feature{CXString(row.id)};
        EXPECT_EQ(feature.getFeature(), row.number);
        EXPECT_EQ(feature.getName(), row.id);
        EXPECT_EQ(feature.getIDAsAttrID().getText(), row.id);
        EXPECT_EQ(feature.getAttrID().getText(), row.leaf);
        EXPECT_EQ(feature.isInSetOf(), row.inSet);
        EXPECT_EQ(feature.isUserDefinable(), row.userDefinable);
        EXPECT_EQ(feature.getPreferredSyntax(), row.preferredSyntax);
        EXPECT_EQ(feature.getPreferredAVTE(), syntaxToAVTE(row.preferredSyntax));
        FeatureEnum parent = 0;
        EXPECT_EQ(feature.getParentFeature(&parent), row.parent != 0);
        EXPECT_EQ(parent, row.parent);
        EXPECT_TRUE(_FI::createFromAbbreviation(feature.getAbbreviation()).isEqual(feature));
        EXPECT_TRUE(feature.clone()->isEqual(_FI(row.number)));
        EXPECT_FALSE(feature.isEqual(_FI(row.number + 1)));
    }
    useResourceLibrary();
    EXPECT_EQ(_FI(feature::copies).getDisplayString(), ResourceLibrary().getString(5220));
}

TEST(FeatureIdentifierTest, UnknownFeaturesAreRefused) {
    const auto unknownId = [](const char* id) {
        return "FeatureDataBase::getFeatureInfo( UniqueID ) could not find requested ID '" +
               std::string(id) + "'\r\n";
    };
    const auto unknownNumber = [](const char* number) {
        return "FeatureDataBase::getFeatureInfo( FeatureEnum ) could not find requested "
               "FeatureEnum " +
               std::string(number) + "\r\n";
    };
    using Unknown = UnknownFeatureRequestException;
    EXPECT_EQ(raised<Unknown>([] { _FI{CXString(u"value")}; }), unknownId("value"));
    EXPECT_EQ(raised<Unknown>([] { _FI{AttrID(u"Copies")}; }), unknownId("Copies"));
    EXPECT_THROW(_FI{CXString()}, InvalidAttributeIdException);
    EXPECT_EQ(raised<Unknown>([] { _FI::createFromAbbreviation(u"aA"); }),
              "FeatureDataBase::getFeatureInfoByAbbreviation() could not find requested ID "
              "'aA'\r\n");
    // Numbers aren't checked before they are used.
    EXPECT_EQ(raised<Unknown>([] { _FI(TJTF_ANY).getName(); }), unknownNumber("1"));
    EXPECT_EQ(raised<Unknown>([] { _FI(138).getAttrID(); }), unknownNumber("138"));
    EXPECT_TRUE(_FI::isFeature(137));
    EXPECT_FALSE(_FI::isFeature(TJTF_ANY));
    EXPECT_TRUE(_FI::isFeatureName(CXString(u"pages")));
    EXPECT_FALSE(_FI::isFeatureName(CXString()));
    // "a" is sides and "A" is copies.
    EXPECT_EQ(_FI::createFromAbbreviation(u"a").getFeature(), feature::sides);
    EXPECT_EQ(_FI::createFromAbbreviation(u"A").getFeature(), feature::copies);
    EXPECT_FALSE(_FI::isFeatureAbbreviation(u"AT"));
}

TEST(SyntaxListTest, TakesTheSecondAndThirdOnlyIfGiven) {
    const SyntaxList::Entry keyword{u"keyword", AVTE_KEYWORD};
    const SyntaxList::Entry name{u"name", AVTE_NAME};
    const SyntaxList::Entry none{u"", AVTE_NULL};
    const SyntaxList::Entry unknown{u"octets", AVTE_NULL};
    struct Row {
        SyntaxList list;
        std::uint32_t count = 0;
    };
    const Row rows[] = {{{keyword, none, none}, 1},    {{keyword, name, none}, 2},
                        {{keyword, name, name}, 3},    {{keyword, none, name}, 1},
                        {{keyword, unknown, name}, 1}, {{keyword, name, unknown}, 2}};
    for (const Row& row : rows) {
        EXPECT_EQ(row.list.getSyntaxCount(), row.count) << &row - rows;
        EXPECT_EQ(row.list.isMultiple(), row.count > 1) << &row - rows;
        EXPECT_EQ(row.list.hasAVTE(AVTE_NAME), row.count > 1) << &row - rows;
        EXPECT_EQ(row.list.hasSyntax(u"name"), row.count > 1) << &row - rows;
    }
}

} // namespace
} // namespace zent::test
