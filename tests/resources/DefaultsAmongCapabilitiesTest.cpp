#include <set>

#include "ocore/Capabilities/Capabilities.h"
#include "ocore/Checking/SettingsValidator.h"
#include "ocore/Printer/PrinterDefaults.h"
#include "support/LibraryTesting.h"
#include "support/ProblemText.h"

namespace zent::test {
namespace {

constexpr FeatureEnum colorHsvHue = feature::colorHsvHue;
constexpr FeatureEnum jobSaveDisposition = feature::jobSaveDisposition;

bool isIn(FeatureEnum feature, std::initializer_list<FeatureEnum> features) {
    return std::ranges::find(features, feature) != features.end();
}

/// The features that a ticket has a value of, beside the collections.
std::vector<FeatureEnum> featuresOf(const FeatureSettings& ticket) {
    std::vector<FeatureEnum> features;
    for (FeatureEnum number = feature::first; number <= feature::last; ++number) {
        if (ticket.isSpecified(_FI(number)) &&
            !isIn(number, {feature::mediaCol, feature::mediaSize, jobSaveDisposition})) {
            features.push_back(number);
        }
    }
    return features;
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
        FeatureSettings stock(list);
        SettingsProblemList problems;
        EXPECT_TRUE(validate(capabilities, stock, problems)) << textOfProblems(problems);
        EXPECT_TRUE(fits(capabilities, stock.getStockSize()));
        EXPECT_TRUE(stock.isSpecified(_FI(feature::mediaKey)) &&
                    keys.insert(stock.getFeatureValue(_FI(feature::mediaKey))).second);
    }
}

/// Those of a fresh ticket of a printer.
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
    if (family != 15 && family != 16 && family != 20) {
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

// Each driver of each model, in both forms.
TEST(DefaultsAmongCapabilitiesTest, EachPrinterHasItsDefaultsAndStocks) {
    useResourceLibrary();
    for (const DriverInfo& driver : getDriverTable()) {
        const PrinterModel model(driver.model, driver.pdl);
        const std::uint32_t family = getModelTable()[driver.model - 1].family;
        for (const std::uint32_t form : {1U, 2U}) {
            SCOPED_TRACE(testing::Message() << "model " << driver.model << ", language "
                                            << driver.pdl << ", form " << form);
            const Capabilities capabilities(model, form);
            const PrinterDefaults defaults(model, form);
            EXPECT_EQ(featuresOf(defaults.getSettings()),
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
