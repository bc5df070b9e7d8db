// What holds of each printer, for each driver and both forms of instructions.

#include <set>

#include "ocore/Capabilities/Capabilities.h"
#include "ocore/Checking/SettingsValidator.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/Printer/PrinterDefaults.h"
#include "ocore/Repair/TicketRepair.h"
#include "support/OrdoDocument.h"
#include "support/ProblemText.h"

namespace zent::test {
namespace {

template <typename Check>
void forEachPrinter(const Check& check) {
    useResourceLibrary();
    useOrdoDtd();
    for (const DriverInfo& driver : getDriverTable()) {
        const PrinterModel model(driver.model, driver.pdl);
        for (const std::uint32_t form : {1U, 2U}) {
            SCOPED_TRACE(testing::Message() << "model " << driver.model << ", language "
                                            << driver.pdl << ", form " << form);
            check(Capabilities(model, form), PrinterDefaults(model, form).getSettings());
        }
    }
}

std::string problemsOf(const Capabilities& capabilities, Settings ticket) {
    SettingsProblemList problems;
    validate(capabilities, ticket, problems);
    return textOfProblems(problems);
}

bool fits(const Capabilities& capabilities, const StockSize& size) {
    const SizeLimits limits = capabilities.getStockSizeLimits();
    return limits.contains(size.getShortEdge(), size.getLongEdge()) ||
           limits.contains(size.getLongEdge(), size.getShortEdge());
}

TEST(EachPrinterTest, TakesItsOwnDefaultsAndStocks) {
    forEachPrinter([](const Capabilities& capabilities, const Settings& defaults) {
        EXPECT_EQ(problemsOf(capabilities, defaults), "");
        // Whatever the user's locale: the sizes that it may choose.
        EXPECT_TRUE(fits(capabilities, StockSize(2))); // Letter
        EXPECT_TRUE(fits(capabilities, StockSize(8))); // A4
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
            EXPECT_EQ(problemsOf(capabilities, stock), "");
            EXPECT_TRUE(fits(capabilities, stock.getStockSize()));
            EXPECT_TRUE(stock.isSpecified(_FI(feature::mediaKey)) &&
                        keys.insert(stock.getFeatureValue(_FI(feature::mediaKey))).second);
        }
    });
}

TEST(EachPrinterTest, TakesWhatItsRepairLeaves) {
    useOrdoDtd();
    std::vector<FeatureSettings> tickets;
    for (const char* const name : {"booklet", "brochure-with-covers", "mailing", "report", "tabs",
                                   "exception-pages-with-inserts"}) {
        tickets.emplace_back(readOrdo(readTestFile(std::string("../examples/") + name + ".xml")));
    }
    std::size_t found = 0;
    forEachPrinter([&](const Capabilities& capabilities, const Settings& defaults) {
        for (const FeatureSettings& ticket : tickets) {
            FeatureSettings repaired = ticket;
            bool hadProblems = false;
            EXPECT_TRUE(applyCapabilitiesToJobTicket(capabilities, repaired, defaults, hadProblems,
                                                     SilentReporter(problemPolicy::repair)));
            found += hadProblems ? 1 : 0;
            repaired.normalize(); // as the next import does
            EXPECT_EQ(problemsOf(capabilities, repaired), "");
        }
    });
    EXPECT_GT(found, 0U);
}

TEST(EachPrinterTest, LimitsTheTextsThatUsersInvent) {
    forEachPrinter([](const Capabilities& capabilities, const Settings&) {
        for (FeatureEnum number = feature::first; number <= feature::last; ++number) {
            EXPECT_TRUE(!capabilities.isUserDefinable(_FI(number)) ||
                        capabilities.getUpperLimit(_FI(number)) > 0U)
                << number;
        }
    });
}

// The language decides over what the family's document offers.
TEST(EachPrinterTest, LacksWhatItsLanguageCannotSay) {
    useResourceLibrary();
    for (const auto& [model, language, highlight, opi, pclSources] :
         Rows<std::uint32_t, std::uint32_t, bool, bool, bool>{
             {48, pageLanguage::postScript, true, false, false}, // highlight colour
             {48, pageLanguage::monochromePcl, false, false, true},
             {43, pageLanguage::postScript, false, true, false}, // process colour
             {43, pageLanguage::colorPcl, false, false, true}}) {
        SCOPED_TRACE(testing::Message() << "model " << model << ", language " << language);
        const Capabilities capabilities(PrinterModel(model, language), 1);
        for (const auto& [number, container, offered] : Rows<FeatureEnum, FeatureEnum, bool>{
                 {feature::highlightColorant, TJTF_ANY, highlight},
                 {feature::colorHsvHue, feature::highlightMapColorCustomCol, highlight},
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
