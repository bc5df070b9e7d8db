#include "ocore/Stock/StockList.h"

#include "ocore/Printer/NonDriverBasedPrinter.h"
#include "plugin_ui/Reports/BoxCapture.h"
#include "plugin_ui/Reports/CurrentWindowSystem.h"
#include "plugin_ui/Reports/SettingsProblemReporter.h"
#include "resources/ids.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

std::unique_ptr<Stock> stockOf(std::string_view ticket, StockType kind = StockType::transient) {
    return Stock::createFromSettings(FeatureSettings(listOf(ticket)), kind);
}
std::string settingsOf(const Stock& stock) {
    return textOfList(*stock.getSettings().getAttrNodeList());
}
std::string keyOf(const Stock& stock) { return stock.getKey().getText().toNarrow(); }

const char* const red = "media-col{media-color=red}";

TEST(StockTest, ReadsWhatOneLevelOfATicketAsksFor) {
    const Rows<const char*, StockSource, const char*, const char*, const char*> rows{
        {"copies=2 media=plain sides=x", StockSource::name, "plain", "media=plain",
         "media-key=plain"},
        {"media=name:Ours", StockSource::name, "Ours", "media=name:Ours", "media-key=name:Ours"},
        {red, StockSource::description, "", red, "media-color=red"},
        {"media-col{media-key=name:Ours media-color=red}", StockSource::description, "Ours", red,
         "media-color=red media-key=name:Ours"},
        {"media-col{media-key=name:Ours}", StockSource::name, "Ours", "media=name:Ours",
         "media-key=name:Ours"},
        {"media=plain media-col{media-color=red}", StockSource::description, "", red,
         "media-color=red"},
        {"media=plain media-col{}", StockSource::name, "plain", "media=plain", "media-key=plain"},
        {"media=plain !private-stock-logical-id=7", StockSource::name, "plain",
         "media=plain !private-stock-logical-id=7", "media-key=plain"},
        {"media=plain private-stock-logical-id=7", StockSource::name, "plain", "media=plain",
         "media-key=plain"}, // a document's own attribute
    };
    for (const auto& [ticket, source, key, settings, stored] : rows) {
        SCOPED_TRACE(ticket);
        const auto stock = stockOf(ticket);
        ASSERT_TRUE(stock);
        EXPECT_EQ(stock->getSource(), source);
        EXPECT_EQ(keyOf(*stock), key);
        EXPECT_EQ(settingsOf(*stock), settings);
        EXPECT_EQ(textOfList(stock->getAttrNodeList()), stored);
        EXPECT_EQ(stock->compare(Stock(*stock)), StockDifference::none);
    }
    for (const char* none : {"", "copies=2 media-col{}", "!private-stock-logical-id=7"}) {
        EXPECT_FALSE(stockOf(none)) << none;
    }
    EXPECT_THROW(stockOf("media=nobody-knows"), UnknownFeatureRequestException);
    EXPECT_THROW(stockOf("media-col=1"), AttributeTypeMismatchException);
}

TEST(StockTest, MatchesByIdThenKeyAndDescription) {
    using enum StockMatch;
    const std::string id1 = "!private-stock-logical-id=1";
    const std::string id2 = "!private-stock-logical-id=2";
    const std::string ours = "media-col{media-key=name:Ours media-color=red}";
    const std::string theirs = "media-col{media-key=name:Theirs media-color=red}";
    const Rows<std::string, std::string, StockMatch, StockDifference> rows{
        {red + id1, "media=plain " + id1, best, StockDifference::source},
        {"media=plain " + id1, "media=plain " + id2, none, StockDifference::logicalID},
        {red, "media=plain", none, StockDifference::source},
        {"media=plain", "media=plain", nextBest, StockDifference::none},
        {"media=plain", "media=bond", none, StockDifference::key},
        {red, red, basic, StockDifference::none},
        {red, ours, basic, StockDifference::key},
        {ours, ours, nextBest, StockDifference::none},
        {ours, theirs, none, StockDifference::key},
        {red, "media-col{media-color=blue}", none, StockDifference::description},
        {red, "media-col{media-color=name:red}", none, StockDifference::description},
        {red, "media-col{media-color=red media-grain=x-grain}", none, StockDifference::description},
        {red, "media-col{media-color=red media-weight-metric=80}", none,
         StockDifference::description},
        {red, "media-col{media-color=red media-size{x-dimension=1}}", none,
         StockDifference::description},
        {red, "media-col{media-color=red unknown=1}", basic, StockDifference::none},
    };
    for (const auto& [first, second, match, difference] : rows) {
        SCOPED_TRACE(first + " | " + second);
        const auto one = stockOf(first);
        const auto other = stockOf(second);
        EXPECT_EQ(one->match(*other), match);
        EXPECT_EQ(other->match(*one), match);
        EXPECT_EQ(one->compare(*other), difference);
        EXPECT_EQ(one->getDescriptionText() == other->getDescriptionText(),
                  one->isSameDescription(*other));
    }
    const auto user = stockOf(red, StockType::user);
    EXPECT_EQ(user->compare(*stockOf(red)), StockDifference::type);
}

TEST(StockTest, IsRepairedUnlessTheUserDeclines) {
    useResourceLibrary();
    NonDriverBasedPrinter printer(6, 2, 1, u"", true);
    const char* const heavy = "media-col{media-color=white media-weight-metric=5000}";
    const char* const repaired = "media-col{media-color=white}"; // the defaults have no weight
    const Rows<const char*, bool, std::int32_t, std::size_t, bool, StockType, const char*> rows{
        {"media-col{media-color=white}", true, messageAnswer::cancel, 0, true, StockType::user,
         "media-col{media-color=white}"},
        {heavy, true, messageAnswer::ok, 1, true, StockType::transient, repaired},
        {heavy, true, messageAnswer::cancel, 1, false, StockType::user, heavy},
        {heavy, false, messageAnswer::ok, 1, true, StockType::transient, repaired},
    };
    for (const auto& [ticket, mayDecline, button, shown, isValid, kind, settings] : rows) {
        const WindowSystemReplacement noWindows(nullptr);
        const BoxCapture boxes(button);
        const auto stock = stockOf(ticket, StockType::user);
        EXPECT_EQ(stock->validate(printer.getCapabilities(), printer.getDefaults().getSettings(),
                                  SettingsProblemReporter::forStock(nullptr, mayDecline)),
                  isValid);
        EXPECT_EQ(stock->getKind(), kind);
        EXPECT_EQ(settingsOf(*stock), settings);
        ASSERT_EQ(boxes.shown().size(), shown);
        for (const ShownBox& box : boxes.shown()) {
            EXPECT_EQ(box.title, resourceText(IDS_STOCK_PROBLEM_TITLE));
            EXPECT_EQ((box.flags & messageStyle::okCancel) != 0, mayDecline);
        }
    }
}

} // namespace
} // namespace zent::test
