#include <gmock/gmock.h>

#include "ocore/FeatureSettings/CapabilityDataBase.h"
#include "ocore/FeatureSettings/CapabilityIdentifier.h"
#include "ocore/FeatureSettings/CapabilityTable.h"
#include "ocore/FeatureSettings/FeatureDataBase.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/FeatureSettings/FeatureIdentifier.h"
#include "ocore/FeatureSettings/FeatureTable.h"
#include "ocore/FeatureSettings/FeatureValueDataBase.h"
#include "ocore/FeatureSettings/FeatureValueTable.h"
#include "ocore/FeatureSettings/StockSize.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

using testing::Contains;

constexpr auto afterLast = static_cast<FeatureEnum>(feature::last + 1);

constexpr std::uint32_t lastType = 12;

bool hasText(std::uint32_t id) { return !ResourceLibrary().getString(id).isEmpty(); }

TEST(FeatureTablesTest, EachFeatureStandsOnceInOrderWithItsText) {
    useResourceLibrary();
    const FeatureDataBase features;
    FeatureEnum expected = feature::first;
    for (const FeatureRow& row : getFeatureRows()) {
        SCOPED_TRACE(row.feature);
        EXPECT_EQ(row.feature, expected);
        ++expected;
        const FeatureInfo& info = features.getFeatureInfo(row.feature);
        EXPECT_EQ(&features.getFeatureInfo(info.m_nestedID.getName()), &info);
        EXPECT_EQ(features.findFeatureInfoByAbbreviation(row.abbreviation), &info);
        EXPECT_TRUE(hasText(row.displayStringID));
        for (const FeatureEnum related : info.m_related) {
            EXPECT_THAT(features.getFeatureInfo(related).m_related, Contains(row.feature));
        }
    }
    EXPECT_EQ(expected, afterLast);
    for (const FeatureEnum number : {feature::none, TJTF_ANY, afterLast}) {
        EXPECT_FALSE(features.hasFeature(number)) << number;
    }
    // "value" is the leaf of many features and the name of none.
    EXPECT_FALSE(features.hasUniqueID(u"value"));
    EXPECT_FALSE(features.hasUniqueID(u"Copies"));
    EXPECT_EQ(features.findFeatureInfoByAbbreviation(u"C"), nullptr);
}

TEST(FeatureTablesTest, EachValueStandsOnceWithItsTextAndSuitsItsFeatures) {
    useResourceLibrary();
    const FeatureValueDataBase values;
    std::size_t count = 0;
    for (std::int32_t number = value::printerDefault; number < value::firstRunTimeValue; ++number) {
        if (!values.hasValue(number)) {
            continue;
        }
        ++count;
        SCOPED_TRACE(number);
        const FeatureValueReference found = values.getFeatureValueInfo(number);
        const FeatureValueInfo& info = *found;
        EXPECT_EQ(info.m_value, number);
        EXPECT_TRUE(hasText(info.m_displayStringID));
        EXPECT_EQ(info.m_type, syntaxToAVTE(info.m_syntax));
        // Each key finds the same row: so no text stands twice for a feature, and no abbreviation
        // twice at all.
        for (const FeatureEnum feature : info.m_features) {
            EXPECT_EQ(&*values.getFeatureValueInfo(feature, info.m_text), &info) << feature;
            // A description is a name, though the media names are offered for it.
            EXPECT_TRUE(
                feature == TJTF_ANY || feature == feature::mediaDescription ||
                FeatureDataBase().getFeatureInfo(feature).m_syntaxes.hasSyntax(info.m_syntax))
                << feature;
        }
        EXPECT_TRUE(info.m_abbreviation.isEmpty() ||
                    values.findFeatureValueInfoByAbbreviation(info.m_abbreviation) == &info);
    }
    EXPECT_EQ(count, getLowerValueRows().size() + getMediaNames().size() +
                         getUpperValueRows().size()); // no number stands twice
    EXPECT_FALSE(values.hasValue(-1) || values.hasValue(0));
    EXPECT_FALSE(values.hasAbbreviation(CXString()));
    EXPECT_FALSE(values.hasFeatureValue(feature::sides, u"One-sided"));
    EXPECT_FALSE(values.hasFeatureValue(feature::sides, u"collated")); // of another feature
}

TEST(FeatureTablesTest, EachSizeIsFoundEitherWayRound) {
    useResourceLibrary();
    for (std::uint32_t code = StockSize::codeUnspecified; code <= StockSize::codeOther; ++code) {
        const StockSize size(code);
        EXPECT_EQ(size.getSize(), code);
        EXPECT_FALSE(size.getDisplayName().isEmpty()) << code;
        if (size.getWidth() > 0) {
            EXPECT_EQ(StockSize(size.getWidth(), size.getHeight()).getSize(), code);
            EXPECT_EQ(StockSize(size.getHeight(), size.getWidth()).getSize(), code);
        }
    }
}

TEST(FeatureTablesTest, CapabilitiesStandOnceInTheOrderOfTheirTypes) {
    const CapabilityDataBase capabilities;
    std::size_t count = 0;
    for (FeatureEnum feature = feature::none; feature <= afterLast; ++feature) {
        SCOPED_TRACE(feature);
        const auto rows = capabilities.getRows(feature);
        count += rows.size();
        std::vector<std::uint32_t> types;
        std::vector<std::uint32_t> extensions;
        for (const CapabilityInfo& row : rows) {
            EXPECT_EQ(row.m_feature, feature);
            EXPECT_TRUE(types.empty() || types.back() < row.m_type);
            EXPECT_EQ(&capabilities.getCapabilityInfo(feature, row.m_type), &row);
            types.push_back(row.m_type);
            if (row.m_class == capabilityClass::extension) {
                extensions.push_back(row.m_type);
            }
        }
        EXPECT_EQ(_CI::getCapabilityTypes(feature), types);
        EXPECT_EQ(_CI::getCapabilityTypes(feature, capabilityClass::extension), extensions);
        for (std::uint32_t type = 0; type <= lastType + 1; ++type) {
            EXPECT_EQ(capabilities.hasCapability(feature, type),
                      std::ranges::count(types, type) == 1)
                << type;
        }
    }
    EXPECT_EQ(count, getCapabilityRows().size()); // each belongs to a feature or to the printer
}

TEST(StockSizeTest, SizesAreTurnedIfOnlyThatFits) {
    useResourceLibrary();
    const Rows<SizeLimits, bool> rows{
        {{21000, 21000, 29700, 29700}, false}, // bounds are inclusive
        {{29700, 29700, 21000, 21000}, true},
        {{10000, 50000, 10000, 50000}, false}, // both ways fit
        {{1, 2, 1, 2}, false},                 // neither does
        {{29701, 50000, 10000, 50000}, false},
        {{25000, 50000, 10000, 20999}, false},
    };
    for (const auto& [limits, turned] : rows) {
        std::int32_t width = 0;
        std::int32_t height = 0;
        StockSize(21000, 29700).getOrientedDimensions(limits, &width, &height);
        EXPECT_EQ(width, turned ? 29700 : 21000);
        EXPECT_EQ(height, turned ? 21000 : 29700);
    }
}

TEST(StockSizeTest, SizesWithinLimits) {
    useResourceLibrary();
    const Rows<SizeLimits, std::vector<std::uint32_t>> rows{
        // 17 x 11 inches and A3 stand in landscape order in the table.
        {{27000, 30000, 40000, 43200}, {4, 9}},
        {{21000, 21600, 27900, 29700}, {2, 8}},
        {{27900, 29700, 21000, 21600}, {2, 8}},
    };
    for (const auto& [limits, expected] : rows) {
        std::vector<std::uint32_t> codes;
        for (const StockSize& size : StockSize::getSizesWithin(limits)) {
            codes.push_back(size.getSize());
        }
        EXPECT_EQ(codes, expected);
    }
    // All but the unspecified and the other.
    EXPECT_EQ(StockSize::getSizesWithin({0, 100000, 0, 100000}).size(), 13U);
}

} // namespace
} // namespace zent::test
