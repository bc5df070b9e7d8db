#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ocore/Capabilities/Capabilities.h"
#include "ocore/Printer/PrinterDefaults.h"
#include "resources/UseResourceLibrary.h"

namespace zent::test {
namespace {

constexpr FeatureEnum colorHsvHue = 51;
constexpr FeatureEnum jobSaveDisposition = 125;
constexpr FeatureEnum lastFeature = 137;

bool isIn(FeatureEnum feature, std::initializer_list<FeatureEnum> features) {
    return std::ranges::find(features, feature) != features.end();
}

/// Checks one feature of a ticket against all that a printer says of it.
void expectOffered(const Capabilities& capabilities, const FeatureSettings& ticket,
                   const _FI& feature) {
    const FeatureEnum number = feature.getFeature();
    // The dimensions are a matter of the media size, which has no members of its own to tell.
    const bool isDimension = isIn(number, {feature::xDimension, feature::yDimension});
    EXPECT_TRUE(capabilities.isFeatureSupported(isDimension ? _FI(feature::mediaSize) : feature));
    if (_CI::hasCapability(number, CAPTYPE_SUPPORTED_VALUES)) {
        const std::vector<FeatureValue> values =
            capabilities.getFeatureCapabilities(feature, false);
        EXPECT_EQ(std::ranges::count(values, ticket.getFeatureValue(feature)), 1);
    }
    if (_CI::hasCapability(number, CAPTYPE_INT_UPPER_LIMIT) && feature.hasAVTE(AVTE_NAME)) {
        CXString text;
        ASSERT_TRUE(ticket.getString(feature, &text));
        EXPECT_LE(text.view().size(), capabilities.getUpperLimit(feature));
    }
    if (_CI::hasCapability(number, CAPTYPE_INT_RANGE) && !isDimension) {
        std::int32_t value = 0;
        std::int32_t lower = 0;
        std::int32_t upper = 0;
        ASSERT_TRUE(ticket.getLong(feature, &value));
        capabilities.getFeatureCapabilities(feature, lower, upper);
        EXPECT_TRUE(value >= lower && value <= upper) << value;
    }
}

/// The features that a fresh ticket of a printer has a value of, beside the collections.
std::vector<FeatureEnum> expectedDefaults(std::uint32_t family, std::uint32_t form,
                                          std::uint32_t pdl) {
    std::vector<FeatureEnum> features{
        feature::copies,           feature::sheetCollate,  feature::sides,
        feature::saveDisposition,  feature::jobName,       feature::requestingUserName,
        feature::jobRecipientName, feature::finishings,    feature::xSide1ImageShift,
        feature::ySide1ImageShift, feature::xDimension,    feature::yDimension,
        feature::mediaType,        feature::mediaHoleCount};
    if (family != 17) {
        features.insert(features.end(), {feature::xSide2ImageShift, feature::ySide2ImageShift});
    } else {
        features.push_back(feature::impositionTemplate);
    }
    if (!isIn(family, {15, 16, 20})) {
        features.push_back(feature::mediaColor);
    }
    if (family <= 8 || family >= 15) {
        features.push_back(feature::pageRotation);
    }
    if (family == 21 && form == 1 && pdl == pageLanguage::postScript) {
        features.insert(features.end(), {feature::opiImageInsertion, feature::opiImagePreScan});
    }
    std::ranges::sort(features);
    return features;
}

// What a printer sets by itself, it must take back: each driver of each model, in both forms.
TEST(DefaultsAmongCapabilitiesTest, EachPrinterOffersItsDefaults) {
    useResourceLibrary();
    for (const DriverInfo& driver : getDriverTable()) {
        const PrinterModel model(driver.model, driver.pdl);
        const std::uint32_t family = getModelTable()[driver.model - 1].family;
        for (const std::uint32_t form : {1U, 2U}) {
            SCOPED_TRACE(testing::Message() << "model " << driver.model << ", language "
                                            << driver.pdl << ", form " << form);
            const Capabilities capabilities(model, form);
            const PrinterDefaults defaults(model, form);
            const FeatureSettings& ticket = defaults.getSettings();
            std::vector<FeatureEnum> found;
            for (FeatureEnum number = 2; number <= lastFeature; ++number) {
                const _FI feature(number);
                if (!ticket.isSpecified(feature) ||
                    isIn(number, {feature::mediaCol, feature::mediaSize, jobSaveDisposition})) {
                    continue;
                }
                SCOPED_TRACE(feature.getName().toNarrow());
                found.push_back(number);
                expectOffered(capabilities, ticket, feature);
            }
            EXPECT_EQ(found, expectedDefaults(family, form, driver.pdl));
            // Whatever the user's locale: the sizes that it may choose, as a ticket holds them.
            for (const std::uint32_t code : {2U, 8U}) { // Letter, A4
                const StockSize size(code);
                EXPECT_TRUE(capabilities.getStockSizeLimits().contains(size.getShortEdge(),
                                                                       size.getLongEdge()))
                    << code;
            }
        }
    }
}

// The language decides over what the family's document offers.
TEST(DefaultsAmongCapabilitiesTest, LanguagesTakeAwayWhatTheyCannotSay) {
    useResourceLibrary();
    struct Row {
        std::uint32_t model;
        std::uint32_t pdl;
        bool highlight;
        bool opi;
        bool pclSources;
    };
    const Row rows[] = {
        {48, pageLanguage::postScript, true, false, false},    // highlight colour
        {48, pageLanguage::monochromePcl, false, false, true}, //
        {43, pageLanguage::postScript, false, true, false},    // process colour
        {43, pageLanguage::monochromePcl, false, false, true}, //
        {43, pageLanguage::colorPcl, false, false, true},      //
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << "model " << row.model << ", language " << row.pdl);
        const Capabilities capabilities(PrinterModel(row.model, row.pdl), 1);
        struct Offer {
            FeatureEnum number;
            FeatureEnum container;
            bool offered;
        };
        const Offer offers[] = {
            {feature::highlightColorant, TJTF_ANY, row.highlight},
            {colorHsvHue, feature::highlightMapColorCustomCol, row.highlight},
            {feature::opiImageInsertion, TJTF_ANY, row.opi},
            {feature::opiImageInsertion, feature::pageOverrides, row.opi},
            {feature::paperSourceNumber, feature::pclPaperSourceCol, row.pclSources},
        };
        for (const auto& [number, container, offered] : offers) {
            const _FI feature(number);
            SCOPED_TRACE(feature.getName().toNarrow());
            EXPECT_EQ(container == TJTF_ANY ? capabilities.isFeatureSupported(feature)
                                            : capabilities.isMemberOf(_FI(container), feature),
                      offered);
            for (const std::uint32_t type : _CI::getCapabilityTypes(number)) {
                EXPECT_EQ(capabilities.getSettings().isSpecified(_CI(number, type)), offered);
            }
        }
    }
}

} // namespace
} // namespace zent::test
