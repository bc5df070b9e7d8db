#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "expected/ExpectedTable.h"
#include "ocore/FeatureSettings/FeatureDataBase.h"
#include "ocore/FeatureSettings/FeatureIdentifier.h"
#include "ocore/FeatureSettings/FeatureValueDataBase.h"
#include "ocore/FeatureSettings/StockSize.h"
#include "resources/UseResourceLibrary.h"

namespace zent::test {
namespace {

constexpr FeatureEnum lastFeature = 137;
constexpr std::int32_t lastValue = 552;

/// An attribute's place as the table writes it: "save-info:s (names) / value".
std::string locationOf(const NestedAttrID& id) {
    std::string location;
    bool named = false;
    for (std::uint32_t i = id.getDepth(); i-- > 0;) { // outermost first
        const CXString& syntax = id.getParentSyntax(i);
        location += location.empty() ? "" : " / ";
        location += id.getParentName(i).toNarrow();
        location += syntax == syntax::setOf        ? ":s"
                    : syntax == syntax::collection ? ":c"
                                                   : ":" + syntax.toNarrow();
        if (id.isNamingParent(i)) {
            location += " (names)";
            named = true;
        }
    }
    return named ? location + " / " + id.getAttrID().getText().toNarrow() : location;
}

std::string joined(const SyntaxList& syntaxes) {
    std::string text;
    for (std::uint32_t i = 0; i < syntaxes.getSyntaxCount(); ++i) {
        text += (i == 0 ? "" : " ") + syntaxes.getSyntax(i).toNarrow();
    }
    return text;
}

std::vector<std::int32_t> signedNumbers(const std::vector<FeatureEnum>& numbers) {
    return {numbers.begin(), numbers.end()};
}

TEST(FeatureTablesTest, FeaturesAreThoseOfTheTable) {
    const FeatureDataBase features;
    const std::vector<ExpectedRow> rows = readExpectedTable("features.tsv");
    ASSERT_EQ(rows.size(), 136U);
    for (const ExpectedRow& row : rows) {
        SCOPED_TRACE(row.text("uniqueId"));
        const auto number = static_cast<FeatureEnum>(row.number("enum"));
        ASSERT_TRUE(features.hasFeature(number));
        const FeatureInfo& info = features.getFeatureInfo(number);
        EXPECT_EQ(info.m_feature, number);
        EXPECT_EQ(info.m_nestedID.getName().toNarrow(), row.text("uniqueId"));
        EXPECT_EQ(locationOf(info.m_nestedID), row.text("location"));
        EXPECT_EQ(info.m_abbreviation.toNarrow(), row.text("abbreviation"));
        EXPECT_EQ(joined(info.m_syntaxes), row.text("syntaxes"));
        EXPECT_EQ(info.m_supportClass, static_cast<std::uint32_t>(row.number("supportClass")));
        EXPECT_EQ(info.m_displayStringID, static_cast<std::uint32_t>(row.number("stringId")));
        EXPECT_EQ(signedNumbers(info.m_related), row.numbers("related"));
        // Each name finds the same row.
        EXPECT_EQ(&features.getFeatureInfo(CXString(row.wide("uniqueId"))), &info);
        EXPECT_EQ(&features.getFeatureInfoByAbbreviation(CXString(row.wide("abbreviation"))),
                  &info);
    }
    for (const FeatureEnum number : {0U, TJTF_ANY, lastFeature + 1}) {
        EXPECT_FALSE(features.hasFeature(number)) << number;
    }
    // "value" is the leaf of many features and the name of none.
    EXPECT_FALSE(features.hasUniqueID(u"value"));
    EXPECT_FALSE(features.hasUniqueID(u"Copies"));
    EXPECT_FALSE(features.hasAbbreviation(u"C"));
}

TEST(FeatureTablesTest, RelationsBetweenFeaturesAreMutual) {
    for (FeatureEnum number = 2; number <= lastFeature; ++number) {
        const FeatureInfo& info = FeatureDataBase().getFeatureInfo(number);
        for (const FeatureEnum related : info.m_related) {
            EXPECT_NE(related, number);
            EXPECT_TRUE(_FI(related).isRelated(number)) << number << " and " << related;
            // All of a group know each other.
            EXPECT_EQ(_FI(related).getRelatedCount(), info.m_related.size()) << number;
        }
    }
}

TEST(FeatureTablesTest, ParentsOfFeaturesAreFeatures) {
    const FeatureDataBase features;
    for (FeatureEnum number = 2; number <= lastFeature; ++number) {
        const _FI feature(number);
        const NestedAttrID& id = feature.getNestedAttrID();
        for (std::uint32_t i = 0; i < id.getDepth(); ++i) {
            const CXString& parent = id.getParentName(i);
            EXPECT_TRUE(parent == u"value" || features.hasUniqueID(parent))
                << feature.getName().toNarrow() << " in " << parent.toNarrow();
        }
        FeatureEnum parent = 0;
        if (feature.getParentFeature(&parent)) {
            // The parent lies where the feature's own path says: its path begins that one.
            const std::string place = locationOf(id);
            const std::string parentPlace = locationOf(_FI(parent).getNestedAttrID());
            const std::string begin = parentPlace.substr(0, parentPlace.find(" (names)"));
            EXPECT_TRUE(place.starts_with(begin)) << place << " does not begin with " << begin;
            EXPECT_NE(parent, number);
        }
    }
}

TEST(FeatureTablesTest, ValuesAreThoseOfTheTable) {
    const FeatureValueDataBase values;
    const std::vector<ExpectedRow> rows = readExpectedTable("values.tsv");
    ASSERT_EQ(rows.size(), 551U);
    for (const ExpectedRow& row : rows) {
        SCOPED_TRACE(row.text("number") + " " + row.text("text"));
        const std::int32_t number = row.number("number");
        ASSERT_TRUE(values.hasValue(number));
        const FeatureValueInfo& info = values.getFeatureValueInfo(number);
        EXPECT_EQ(info.m_value, number);
        EXPECT_EQ(signedNumbers(info.m_features), row.numbers("features"));
        EXPECT_EQ(info.m_text.toNarrow(), row.text("text"));
        EXPECT_EQ(info.m_abbreviation.toNarrow(), row.text("abbreviation"));
        EXPECT_EQ(info.m_displayStringID, static_cast<std::uint32_t>(row.number("stringId")));
        EXPECT_EQ(info.m_imageID, static_cast<std::uint32_t>(row.number("imageId")));
        EXPECT_EQ(info.m_syntax.toNarrow(), row.text("syntax"));
        EXPECT_EQ(info.m_type, syntaxToAVTE(info.m_syntax));
        // Each key finds the same row: so no text stands twice for a feature, and no abbreviation
        // twice at all.
        for (const FeatureEnum feature : info.m_features) {
            EXPECT_EQ(&values.getFeatureValueInfo(feature, info.m_text), &info) << feature;
        }
        if (info.m_abbreviation.isEmpty()) {
            continue;
        }
        EXPECT_EQ(&values.getFeatureValueInfoByAbbreviation(info.m_abbreviation), &info);
    }
    for (const std::int32_t number : {-1, 0, 172}) {
        EXPECT_FALSE(values.hasValue(number)) << number;
    }
    EXPECT_FALSE(values.hasAbbreviation(CXString()));
    EXPECT_FALSE(values.hasFeatureValue(feature::sides, u"One-sided"));
    EXPECT_FALSE(values.hasFeatureValue(feature::sides, u"collated")); // of another feature
}

TEST(FeatureTablesTest, OnlyRelatedFeaturesShareValues) {
    const FeatureValueDataBase values;
    for (std::int32_t number = 2; number <= lastValue; ++number) {
        if (!values.hasValue(number)) {
            continue;
        }
        const std::vector<FeatureEnum>& features = values.getFeatureValueInfo(number).m_features;
        for (const FeatureEnum other : features) {
            EXPECT_TRUE(other == features.front() || _FI(features.front()).isRelated(other))
                << "value " << number << ", feature " << other;
        }
    }
}

TEST(FeatureTablesTest, SizesAreThoseOfTheTable) {
    useResourceLibrary();
    const ResourceLibrary resources;
    const std::vector<ExpectedRow> rows = readExpectedTable("sizes.tsv");
    ASSERT_EQ(rows.size(), 15U);
    for (const ExpectedRow& row : rows) {
        SCOPED_TRACE(row.text("name"));
        const auto code = static_cast<std::uint32_t>(row.number("code"));
        const std::int32_t width = row.number("width");
        const std::int32_t height = row.number("height");
        const StockSize size(code);
        EXPECT_EQ(size.getSize(), code);
        EXPECT_EQ(size.getSizeName().toNarrow(), row.text("name"));
        EXPECT_EQ(size.getWidth(), width);
        EXPECT_EQ(size.getHeight(), height);
        EXPECT_EQ(size.getDisplayName(),
                  resources.getString(static_cast<std::uint32_t>(row.number("stringId"))));
        if (width <= 0) {
            continue;
        }
        // Either way round finds the row, in the table's own orientation.
        for (const StockSize& found : {StockSize(width, height), StockSize(height, width)}) {
            EXPECT_EQ(found.getSize(), code);
            EXPECT_EQ(found.getWidth(), width);
            EXPECT_EQ(found.getHeight(), height);
        }
    }
}

} // namespace
} // namespace zent::test
