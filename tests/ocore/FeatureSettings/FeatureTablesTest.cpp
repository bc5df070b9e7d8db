#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "PrintText.h"
#include "expected/ExpectedTable.h"
#include "ocore/FeatureSettings/CapabilityDataBase.h"
#include "ocore/FeatureSettings/CapabilityIdentifier.h"
#include "ocore/FeatureSettings/FeatureDataBase.h"
#include "ocore/FeatureSettings/FeatureIdentifier.h"
#include "ocore/FeatureSettings/FeatureValueDataBase.h"
#include "ocore/FeatureSettings/StockSize.h"
#include "resources/UseResourceLibrary.h"
#include "support/Raised.h"
#include "support/Rows.h"

namespace zent::test {
namespace {

constexpr auto afterLast = static_cast<FeatureEnum>(feature::last + 1);

constexpr std::uint32_t lastType = 12;

/// An attribute's place as the tables write it: "media-size-supported:c / value:c / x-dimension" or
/// "save-info:s (names) / value". The leaf is left out, unless it is asked for, if it is the name.
std::string locationOf(const NestedAttrID& id, bool endsInLeaf) {
    std::string location;
    for (std::uint32_t i = id.getDepth(); i-- > 0;) { // outermost first
        const bool isSet = id.getParentSyntax(i) == syntax::setOf;
        EXPECT_TRUE(isSet || id.getParentSyntax(i) == syntax::collection);
        location += location.empty() ? "" : " / ";
        location += id.getParentName(i).toNarrow() + (isSet ? ":s" : ":c");
        location += id.isNamingParent(i) ? " (names)" : "";
        endsInLeaf = endsInLeaf || id.isNamingParent(i);
    }
    return endsInLeaf && !id.isSimple() ? location + " / " + id.getAttrID().getText().toNarrow()
                                        : location;
}

std::string joined(const SyntaxList& syntaxes) {
    std::string text;
    for (std::uint32_t i = 0; i < syntaxes.getSyntaxCount(); ++i) {
        text += (i == 0 ? "" : " ") + syntaxes.getSyntax(i).toNarrow();
    }
    return text;
}

TEST(FeatureTablesTest, FeaturesAreThoseOfTheTable) {
    const FeatureDataBase features;
    const std::vector<ExpectedRow> rows = readExpectedTable("features.tsv");
    ASSERT_EQ(rows.size(), feature::last - TJTF_ANY);
    for (const ExpectedRow& row : rows) {
        SCOPED_TRACE(row.text("uniqueId"));
        const FeatureInfo& info =
            features.getFeatureInfo(static_cast<FeatureEnum>(row.number("enum")));
        row.expect({{"enum", info.m_feature},
                    {"uniqueId", info.m_nestedID.getName()},
                    {"location", locationOf(info.m_nestedID, false)},
                    {"abbreviation", info.m_abbreviation},
                    {"syntaxes", joined(info.m_syntaxes)},
                    {"supportClass", info.m_supportClass},
                    {"stringId", info.m_displayStringID},
                    {"related", info.m_related}});
        // Each name finds the same row.
        EXPECT_EQ(&features.getFeatureInfo(CXString(row.wide("uniqueId"))), &info);
        EXPECT_EQ(&features.getFeatureInfoByAbbreviation(CXString(row.wide("abbreviation"))),
                  &info);
    }
    for (const FeatureEnum number : {feature::none, TJTF_ANY, afterLast}) {
        EXPECT_FALSE(features.hasFeature(number)) << number;
    }
    // "value" is the leaf of many features and the name of none.
    EXPECT_FALSE(features.hasUniqueID(u"value"));
    EXPECT_FALSE(features.hasUniqueID(u"Copies"));
    EXPECT_FALSE(features.hasAbbreviation(u"C"));
}

TEST(FeatureTablesTest, ValuesAreThoseOfTheTable) {
    const FeatureValueDataBase values;
    const std::vector<ExpectedRow> rows = readExpectedTable("values.tsv");
    ASSERT_EQ(rows.size(), 551U);
    for (const ExpectedRow& row : rows) {
        SCOPED_TRACE(row.text("number") + " " + row.text("text"));
        const FeatureValueReference found = values.getFeatureValueInfo(row.number("number"));
        const FeatureValueInfo& info = *found;
        row.expect({{"number", info.m_value},
                    {"features", info.m_features},
                    {"text", info.m_text},
                    {"abbreviation", info.m_abbreviation},
                    {"stringId", info.m_displayStringID},
                    {"imageId", info.m_imageID},
                    {"syntax", info.m_syntax}});
        EXPECT_EQ(info.m_type, syntaxToAVTE(info.m_syntax));
        // Each key finds the same row: so no text stands twice for a feature, and no abbreviation
        // twice at all.
        for (const FeatureEnum feature : info.m_features) {
            EXPECT_EQ(&*values.getFeatureValueInfo(feature, info.m_text), &info) << feature;
        }
        EXPECT_TRUE(info.m_abbreviation.isEmpty() ||
                    &values.getFeatureValueInfoByAbbreviation(info.m_abbreviation) == &info);
    }
    for (const std::int32_t number : {-1, 0, 172}) {
        EXPECT_FALSE(values.hasValue(number)) << number;
    }
    EXPECT_FALSE(values.hasAbbreviation(CXString()));
    EXPECT_FALSE(values.hasFeatureValue(feature::sides, u"One-sided"));
    EXPECT_FALSE(values.hasFeatureValue(feature::sides, u"collated")); // of another feature
}

TEST(FeatureTablesTest, SizesAreThoseOfTheTable) {
    useResourceLibrary();
    const std::vector<ExpectedRow> rows = readExpectedTable("sizes.tsv");
    ASSERT_EQ(rows.size(), 15U);
    for (const ExpectedRow& row : rows) {
        const StockSize size(static_cast<std::uint32_t>(row.number("code")));
        row.expect({{"code", size.getSize()},
                    {"name", size.getSizeName()},
                    {"width", size.getWidth()},
                    {"height", size.getHeight()}});
        EXPECT_EQ(size.getDisplayName(),
                  ResourceLibrary().getString(static_cast<std::uint32_t>(row.number("stringId"))));
        if (size.getWidth() > 0) { // either way round finds the row
            EXPECT_EQ(StockSize(size.getWidth(), size.getHeight()).getSize(), size.getSize());
            EXPECT_EQ(StockSize(size.getHeight(), size.getWidth()).getSize(), size.getSize());
        }
    }
}

TEST(FeatureTablesTest, CapabilitiesAreThoseOfTheTable) {
    const CapabilityDataBase capabilities;
    std::map<FeatureEnum, std::vector<std::uint32_t>> types;
    std::map<FeatureEnum, std::vector<std::uint32_t>> extensions;
    const std::vector<ExpectedRow> rows = readExpectedTable("capabilities.tsv");
    ASSERT_EQ(rows.size(), 178U);
    for (const ExpectedRow& row : rows) {
        const auto feature = static_cast<FeatureEnum>(row.number("feature"));
        const auto type = static_cast<std::uint32_t>(row.number("type"));
        SCOPED_TRACE(row.text("feature") + " " + row.text("attribute"));
        const CapabilityInfo& info = capabilities.getCapabilityInfo(feature, type);
        row.expect({{"feature", info.m_feature},
                    {"type", info.m_type},
                    {"attribute", info.m_nestedID.getName()},
                    {"location", locationOf(info.m_nestedID, true)},
                    {"syntaxes", joined(info.m_syntaxes)}});
        const bool isExtension = row.text("class") == "PRIVATE";
        EXPECT_EQ(info.m_class,
                  isExtension ? capabilityClass::extension : capabilityClass::standard);
        types[feature].push_back(type);
        if (isExtension) {
            extensions[feature].push_back(type);
        }
        EXPECT_EQ(_CI(feature, type).isInSetOf(),
                  row.text("location").ends_with(":s (names) / value"));
    }
    for (FeatureEnum feature = feature::none; feature <= afterLast; ++feature) {
        SCOPED_TRACE(feature);
        EXPECT_EQ(_CI::getCapabilityTypes(feature), types[feature]); // in the order of their types
        EXPECT_EQ(_CI::getCapabilityTypes(feature, capabilityClass::extension),
                  extensions[feature]);
        for (std::uint32_t type = 0; type <= lastType + 1; ++type) {
            const bool isThere = std::ranges::count(types[feature], type) == 1;
            EXPECT_EQ(capabilities.hasCapability(feature, type), isThere) << type;
        }
    }
}

TEST(FeatureTablesTest, CapabilitiesAreEqualByFeatureAndType) {
    const _CI account(feature::jobAccountID, CAPTYPE_CHAR_RESTRICTION);
    const _CI data(feature::jobAccountingData, CAPTYPE_CHAR_RESTRICTION);
    EXPECT_EQ(account.getName(), data.getName()); // one attribute serves three features
    EXPECT_FALSE(account.isEqual(data));
    EXPECT_FALSE(account.isEqual(_CI(feature::jobAccountID, CAPTYPE_INT_RANGE)));
    // A feature and a capability are never the same.
    EXPECT_FALSE(account.isEqual(_FI(feature::jobAccountID)));
    EXPECT_FALSE(_FI(feature::jobAccountID).isEqual(account));
}

TEST(FeatureTablesTest, CapabilitiesThatAreNotThereAreNamed) {
    for (const auto& [feature, type, ending] : Rows<FeatureEnum, std::uint32_t, const char*>{
             {feature::copies, 4, "'4' for feature '2' (copies).\r\n"},
             {afterLast, 1, "'1' for feature '138' (<unknown>!).\r\n"},
             {TJTF_ANY, 1, "'1' for feature '1' (<unknown>!).\r\n"}}) {
        const _CI capability(feature, type);
        EXPECT_EQ(raised<UnknownFeatureRequestException>([&] { capability.getName(); }),
                  std::string("CapabilityDataBase::getCapabilityInfo( Feature, Capability type ) "
                              "could not find requested capability type ") +
                      ending);
    }
    EXPECT_EQ(getCapabilityTypeText(lastType + 1), u"[UNKNOWN!]");
}

} // namespace
} // namespace zent::test
