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
    const struct {
        const char* ticket;
        StockSource source;
        const char* key;
        const char* settings;
        const char* stored;
    } rows[] = {
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
    for (const auto& row : rows) {
        SCOPED_TRACE(row.ticket);
        const auto stock = stockOf(row.ticket);
        ASSERT_TRUE(stock);
        EXPECT_EQ(stock->getSource(), row.source);
        EXPECT_EQ(keyOf(*stock), row.key);
        EXPECT_EQ(settingsOf(*stock), row.settings);
        EXPECT_EQ(textOfList(stock->getAttrNodeList()), row.stored);
        EXPECT_EQ(stock->compare(Stock(*stock)), StockDifference::none);
    }
    for (const char* none : {"", "copies=2 media-col{}", "!private-stock-logical-id=7"}) {
        EXPECT_FALSE(stockOf(none)) << none;
    }
    EXPECT_THROW(stockOf("media=nobody-knows"), UnknownFeatureRequestException);
    EXPECT_THROW(stockOf("media-col=1"), AttributeTypeMismatchException);
}

TEST(StockTest, ReplacesTheMediaOfATicket) {
    auto stock = stockOf(red);
    stock->setKeyFromText(u"Ours");
    FeatureSettings ticket(
        listOf("media=plain copies=2 media-col{media-color=blue} !private-stock-logical-id=3"));
    stock->applyTo(ticket);
    EXPECT_EQ(textOfList(*ticket.getAttrNodeList()), "copies=2 media-col{media-color=red}");
    stock->assignNewLogicalID();
    stock->applyTo(ticket);
    EXPECT_EQ(Stock::getLogicalIDFromSettings(ticket), stock->getLogicalID());
    EXPECT_EQ(stockOf(textOfList(*ticket.getAttrNodeList()))->match(*stock), StockMatch::best);
    Stock::removeLogicalIDFromSettings(ticket);

    stock->copyLogicalID(*stockOf(red));
    stock->setSource(StockSource::name);
    EXPECT_EQ(settingsOf(*stock), "media=name:Ours");
    stock->setKeyFromText(u"Theirs");
    stock->applyTo(ticket);
    EXPECT_EQ(textOfList(*ticket.getAttrNodeList()), "copies=2 media=name:Theirs");
    stock->setKeyFromText(u"");
    EXPECT_FALSE(stock->hasKey());
}

TEST(StockTest, MatchesByIdThenKeyAndDescription) {
    using enum StockMatch;
    const std::string id1 = "!private-stock-logical-id=1";
    const std::string id2 = "!private-stock-logical-id=2";
    const std::string ours = "media-col{media-key=name:Ours media-color=red}";
    const std::string theirs = "media-col{media-key=name:Theirs media-color=red}";
    const struct {
        std::string one;
        std::string other;
        StockMatch match;
        StockDifference difference;
    } rows[] = {
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
    for (const auto& row : rows) {
        SCOPED_TRACE(row.one + " | " + row.other);
        const auto one = stockOf(row.one);
        const auto other = stockOf(row.other);
        EXPECT_EQ(one->match(*other), row.match);
        EXPECT_EQ(other->match(*one), row.match);
        EXPECT_EQ(one->compare(*other), row.difference);
        EXPECT_EQ(one->getDescriptionText() == other->getDescriptionText(),
                  one->isSameDescription(*other));
    }
    const auto user = stockOf(red, StockType::user);
    EXPECT_EQ(user->compare(*stockOf(red)), StockDifference::type);
}

TEST(StockTest, TellsUsersWhoseItIs) {
    useResourceLibrary();
    auto stock = stockOf("media=name:Ours", StockType::transient);
    EXPECT_EQ(stock->getDisplayString(), u"Ours");
    stock->setKind(StockType::user);
    EXPECT_EQ(stock->getDisplayString(), u"Ours (library)");
    stock->setKind(StockType::printer);
    EXPECT_EQ(stock->getDisplayString(), u"Ours (printer)");
    stock->setKind(static_cast<StockType>(4));
    EXPECT_EQ(raised<UnknownCaseException>([&] { stock->getDisplayString(); }),
              "Stock::getDisplayString(): Unexpected stock type enumeration value of (4)!\r\n");
}

TEST(StockTest, IsRepairedUnlessTheUserDeclines) {
    useResourceLibrary();
    NonDriverBasedPrinter printer(6, 2, 1, u"", true);
    const char* const heavy = "media-col{media-color=white media-weight-metric=5000}";
    const char* const repaired = "media-col{media-color=white}"; // the defaults have no weight
    const struct {
        const char* ticket;
        bool mayDecline;
        std::int32_t button;
        std::size_t boxes;
        bool isValid;
        StockType kind;
        const char* settings;
    } rows[] = {
        {"media-col{media-color=white}", true, messageAnswer::cancel, 0, true, StockType::user,
         "media-col{media-color=white}"},
        {heavy, true, messageAnswer::ok, 1, true, StockType::transient, repaired},
        {heavy, true, messageAnswer::cancel, 1, false, StockType::user, heavy},
        {heavy, false, messageAnswer::ok, 1, true, StockType::transient, repaired},
    };
    for (const auto& row : rows) {
        const WindowSystemReplacement noWindows(nullptr);
        const BoxCapture boxes(row.button);
        const auto stock = stockOf(row.ticket, StockType::user);
        EXPECT_EQ(stock->validate(printer.getCapabilities(), printer.getDefaults().getSettings(),
                                  SettingsProblemReporter::forStock(nullptr, row.mayDecline)),
                  row.isValid);
        EXPECT_EQ(stock->getKind(), row.kind);
        EXPECT_EQ(settingsOf(*stock), row.settings);
        ASSERT_EQ(boxes.shown().size(), row.boxes);
        for (const ShownBox& box : boxes.shown()) {
            EXPECT_EQ(box.title, resourceText(IDS_STOCK_PROBLEM_TITLE));
            EXPECT_EQ((box.flags & messageStyle::okCancel) != 0, row.mayDecline);
        }
    }
}

TEST(StockListTest, KeepsOrderAndItsCursor) {
    StockList list;
    for (const char* name : {"media=a", "media=b", "media=c"}) {
        list.addStock(*stockOf(name));
    }
    StockList copy(list);
    EXPECT_FALSE(copy.contains(&list.getStockAt(0)));
    copy.addAll(copy);
    EXPECT_EQ(copy.getCount(), 6U);

    std::string walked;
    for (list.resetStocks(); list.hasMoreStocks();) {
        const Stock* const stock = list.getNextStock();
        walked += keyOf(*stock);
        StockList::Cursor cursor = 0;
        for (StockList::resetStocks(cursor); list.hasMoreStocks(cursor);) {
            walked += keyOf(*list.getNextStock(cursor));
        }
        if (walked.size() == 4) {
            list.removeStock(stock);
        }
    }
    EXPECT_EQ(walked, "aabc"
                      "bbc"
                      "cbc");
    EXPECT_EQ(raised<NodeAccessOutOfBoundsException>([&] { list.getNextStock(); }),
              "StockList::getNextStock(): No more Stocks to get. Caller failed to test with "
              "hasMoreStocks() first!\r\n");
}

TEST(StockListTest, MakesStocksOfCollections) {
    const auto stocks = StockList::createFromList(
        listOf("value{media-key=plain} other{media-key=bond} value{} value{media-color=red}"),
        StockType::printer);
    ASSERT_EQ(stocks->getCount(), 2U);
    EXPECT_EQ(settingsOf(stocks->getStockAt(0)), "media=plain");
    EXPECT_EQ(settingsOf(stocks->getStockAt(1)), red);
    EXPECT_EQ(stocks->getStockAt(1).getKind(), StockType::printer);
    EXPECT_THROW(StockList::createFromList(listOf("value{} value=plain"), StockType::user),
                 AttributeTypeMismatchException);
}

TEST(StockListTest, UsersBeginWithPlainPaper) {
    useResourceLibrary();
    const auto stocks = StockList::createDefaultLibrary();
    ASSERT_EQ(stocks->getCount(), 10U);
    for (std::uint32_t i = 0; i < 10; ++i) {
        const Stock& stock = stocks->getStockAt(i);
        EXPECT_TRUE(stock.isFavorite() && !stock.hasKey() && stock.getKind() == StockType::user);
        EXPECT_EQ(stock.getSettings().getStockSize().getSize(), i + 2);
    }
    EXPECT_EQ(settingsOf(stocks->getStockAt(2)),
              "media-col{media-color=white media-type=stationery media-hole-count=0 "
              "media-size{x-dimension=27900 y-dimension=43200}}");
}

} // namespace
} // namespace zent::test
