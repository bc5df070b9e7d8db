#include <algorithm>
#include <set>
#include <vector>

#include <gtest/gtest.h>

#include "ocore/Capabilities/Capabilities.h"
#include "ocore/Printer/PrinterDefaults.h"
#include "resources/UseResourceLibrary.h"
#include "support/ListText.h"
#include "support/Rows.h"

namespace zent::test {
namespace {

constexpr FeatureEnum colorHsvHue = 51;
constexpr FeatureEnum jobSaveDisposition = 125;
constexpr FeatureEnum lastFeature = 137;

bool isIn(FeatureEnum feature, std::initializer_list<FeatureEnum> features) {
    return std::ranges::find(features, feature) != features.end();
}

/// Checks each feature of a ticket against all that a printer says of it; gives the features that
/// are no collections.
std::vector<FeatureEnum> expectOffered(const Capabilities& capabilities,
                                       const FeatureSettings& ticket) {
    std::vector<FeatureEnum> found;
    for (FeatureEnum number = 2; number <= lastFeature; ++number) {
        const _FI feature(number);
        if (!ticket.isSpecified(feature) ||
            isIn(number, {feature::mediaCol, feature::mediaSize, jobSaveDisposition})) {
            continue;
        }
        SCOPED_TRACE(feature.getName().toNarrow());
        found.push_back(number);
        // The dimensions are a matter of the media size, which has no members of its own to tell.
        const bool isDimension = isIn(number, {feature::xDimension, feature::yDimension});
        EXPECT_TRUE(
            capabilities.isFeatureSupported(isDimension ? _FI(feature::mediaSize) : feature));
        if (_CI::hasCapability(number, CAPTYPE_SUPPORTED_VALUES)) {
            const auto values = capabilities.getFeatureCapabilities(feature, false);
            EXPECT_EQ(std::ranges::count(values, ticket.getFeatureValue(feature)), 1);
        }
        CXString text;
        if (_CI::hasCapability(number, CAPTYPE_INT_UPPER_LIMIT) && feature.hasAVTE(AVTE_NAME) &&
            ticket.getString(feature, &text)) {
            EXPECT_LE(text.view().size(), capabilities.getUpperLimit(feature));
        }
        std::int32_t value = 0;
        if (_CI::hasCapability(number, CAPTYPE_INT_RANGE) && !isDimension &&
            ticket.getLong(feature, &value)) {
            std::int32_t lower = 0;
            std::int32_t upper = 0;
            capabilities.getFeatureCapabilities(feature, lower, upper);
            EXPECT_TRUE(value >= lower && value <= upper) << value;
        }
    }
    return found;
}

bool fits(const Capabilities& capabilities, const StockSize& size) {
    const SizeLimits limits = capabilities.getStockSizeLimits();
    return limits.contains(size.getShortEdge(), size.getLongEdge()) ||
           limits.contains(size.getLongEdge(), size.getShortEdge());
}

/// Checks the stocks that a printer has against what it takes.
void expectOwnStocks(const Capabilities& capabilities) {
    const AttrNodeList* stocks = nullptr;
    ASSERT_TRUE(std::as_const(*capabilities.getSettings().getAttrNodeList())
                    .OrdoAttrToList(&stocks, AttrID(u"media-col-database")));
    EXPECT_GE(stocks->getNumberOfNodes(), 4U);
    std::set<FeatureValue> keys;
    for (std::uint32_t i = 0; i < stocks->getNumberOfNodes(); ++i) {
        AttrNodeList list;
        list.addNode(stocks->getNodeAt(i))->setAttrID(AttrID(u"media-col"));
        SCOPED_TRACE(textOfList(list));
        const FeatureSettings stock(list);
        expectOffered(capabilities, stock);
        EXPECT_TRUE(fits(capabilities, stock.getStockSize()));
        EXPECT_TRUE(stock.isSpecified(_FI(feature::mediaKey)) &&
                    keys.insert(stock.getFeatureValue(_FI(feature::mediaKey))).second);
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
            EXPECT_EQ(expectOffered(capabilities, defaults.getSettings()),
                      expectedDefaults(family, form, driver.pdl));
            // Whatever the user's locale: the sizes that it may choose.
            EXPECT_TRUE(fits(capabilities, StockSize(2))); // Letter
            EXPECT_TRUE(fits(capabilities, StockSize(8))); // A4
            expectOwnStocks(capabilities);
        }
    }
}

// The language decides over what the family's document offers.
TEST(DefaultsAmongCapabilitiesTest, LanguagesTakeAwayWhatTheyCannotSay) {
    useResourceLibrary();
    for (const auto& [model, language, highlight, opi, pclSources] :
         Rows<std::uint32_t, std::uint32_t, bool, bool, bool>{
             {48, pageLanguage::postScript, true, false, false}, // highlight colour
             {48, pageLanguage::monochromePcl, false, false, true},
             {43, pageLanguage::postScript, false, true, false}, // process colour
             {43, pageLanguage::monochromePcl, false, false, true},
             {43, pageLanguage::colorPcl, false, false, true}}) {
        SCOPED_TRACE(testing::Message() << "model " << model << ", language " << language);
        const Capabilities capabilities(PrinterModel(model, language), 1);
        for (const auto& [number, container, offered] : Rows<FeatureEnum, FeatureEnum, bool>{
                 {feature::highlightColorant, TJTF_ANY, highlight},
                 {colorHsvHue, feature::highlightMapColorCustomCol, highlight},
                 {feature::opiImageInsertion, TJTF_ANY, opi},
                 {feature::opiImageInsertion, feature::pageOverrides, opi},
                 {feature::paperSourceNumber, feature::pclPaperSourceCol, pclSources}}) {
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
