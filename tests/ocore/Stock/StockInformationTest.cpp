#include "ocore/Stock/StockInformation.h"

#include <thread>

#include "ocore/Attributes/IppList.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/Printer/NonDriverBasedPrinter.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

std::unique_ptr<Stock> stockOf(std::string_view ticket, StockType kind = StockType::user) {
    return Stock::createFromSettings(FeatureSettings(listOf(ticket)), kind);
}

/// A ticket's text without the ids, which differ from run to run.
std::string textOf(const FeatureSettings& ticket) {
    std::string text = textOfList(*ticket.getAttrNodeList());
    const std::string id = "!private-stock-logical-id=";
    for (auto at = text.find(id); at != std::string::npos; at = text.find(id)) {
        const auto end = text.find_first_not_of("0123456789", at + id.size());
        text.erase(at, end == std::string::npos ? end : end - at).insert(at, "!");
    }
    return text;
}

class StockInformationTest : public testing::Test {
protected:
    static void SetUpTestSuite() { useResourceLibrary(); }

    /// "1 2 Ours" for the stocks of a kind.
    std::string keysOf(StockType kind) {
        std::string keys;
        m_stocks.resetStocksByType(kind);
        while (m_stocks.hasMoreStocksByType()) {
            keys += (keys.empty() ? "" : " ") +
                    m_stocks.getNextStockByType()->getKey().getText().toNarrow();
        }
        return keys;
    }
    CXString folderName() const {
        return CXString(std::filesystem::path(m_folder.path()).make_preferred().string().c_str());
    }

    ScratchFolder m_folder;
    NonDriverBasedPrinter m_printer{6, 2, 1, u"", true};
    StockInformation m_stocks{m_printer, MediaPreferences(folderName())};
};

TEST_F(StockInformationTest, TicketsAndStocksAreKeptInStep) {
    const Stock* const ours =
        m_stocks.addStock(*stockOf("media-col{media-color=red media-key=name:Ours}"));
    FeatureSettings ticket(listOf(
        "media-col{media-color=red} copies=2 cover-front{media=name:Ours} "
        "page-overrides[value{media-col{media-key=name:Ours media-color=red}} "
        "value{media-col{media-key=name:Theirs media-color=red}} value{media=nobody-knows}]"));
    m_stocks.setSettings(&ticket);
    EXPECT_EQ(textOf(ticket),
              "copies=2 cover-front{media=name:Ours !} "
              "page-overrides[value{media-col{media-color=red media-key=name:Ours} !} "
              "value{media-col{media-color=red media-key=name:Theirs} !} "
              "value{media=nobody-knows}] media-col{media-color=red} !");
    EXPECT_EQ(keysOf(StockType::transient), "Ours Theirs");
    EXPECT_EQ(m_stocks.getUseCount(*ours), 2U);
    EXPECT_EQ(m_stocks.getUsingFeatures(*ours),
              (std::vector<FeatureEnum>{TJTF_ANY, feature::pageOverrides}));
    EXPECT_EQ(m_stocks.getUsingFeatures(*stockOf("media=name:Ours")),
              (std::vector<FeatureEnum>{feature::coverFront}));

    // A change of the stock reaches the ticket, though it has become another one by description.
    Stock changed(*ours);
    changed.getSettings().setFeatureValue(_FI(feature::mediaColor),
                                          FeatureValue(value::mediaWhite));
    changed.setKeyFromText(u"New");
    m_stocks.replaceStock(changed);
    EXPECT_EQ(textOf(ticket),
              "copies=2 cover-front{media=name:Ours !} "
              "page-overrides[value{media-col{media-color=white media-key=name:New} !} "
              "value{media-col{media-color=red media-key=name:Theirs} !} "
              "value{media=nobody-knows}] media-col{media-color=white} !");
    EXPECT_EQ(m_stocks.getUseCount(*ours), 2U);

    m_stocks.removeStock(*ours);
    EXPECT_EQ(ours->getKind(), StockType::transient) << "in use";
    FeatureSettings other(listOf("media=name:Else"));
    m_stocks.setSettings(&other);
    EXPECT_EQ(keysOf(StockType::transient), "Else");
    EXPECT_EQ(keysOf(StockType::user), "1 2 3 4 5 6 7 8 9 10");
    m_stocks.setSettings(nullptr);
    EXPECT_EQ(keysOf(StockType::transient), "");
}

TEST_F(StockInformationTest, AnIdOfAnotherSessionIsNoStock) {
    FeatureSettings ticket(listOf("media-col{media-color=red}"));
    m_stocks.addStock(*stockOf("media-col{media-color=red}"));
    m_stocks.setSettings(&ticket);
    m_stocks.save();
    StockInformation next(m_printer, MediaPreferences(folderName()));
    next.setSettings(&ticket);
    next.resetStocksByType(StockType::transient);
    EXPECT_FALSE(next.hasMoreStocksByType()) << "found by its description";
}

TEST_F(StockInformationTest, WhatOthersSavedMeanwhileStays) {
    StockInformation other(m_printer, MediaPreferences(folderName()));
    const auto change =
        [](StockInformation& stocks, const char* name, const char* removed, const char* favorite) {
        Stock added = *stockOf("media-col{media-color=red}");
        added.setKeyFromText(CXString(name));
        stocks.addStock(added);
        stocks.addStock(*stockOf("media-col{media-color=blue}")); // gets a number
        stocks.resetStocksByType(StockType::user);
        while (stocks.hasMoreStocksByType()) {
            const Stock& stock = *stocks.getNextStockByType();
            const CXString key = stock.getKey().getText();
            stocks.setFavorite(stock, stock.isFavorite() != (key == CXString(favorite)));
            if (key == CXString(removed)) {
                stocks.removeStock(stock);
            }
        }
    };
    m_stocks.resetStocksByType(StockType::user);
    Stock changed = *m_stocks.getNextStockByType();
    while (changed.getKey().getText() != u"5") {
        changed = *m_stocks.getNextStockByType();
    }
    changed.getSettings().setStockSize(StockSize(12345, 23456)); // as many attributes as before
    m_stocks.replaceStock(changed);
    change(m_stocks, "mine", "2", "1");
    change(other, "yours", "3", "4");
    m_stocks.save();
    other.save();
    m_stocks.save(); // has changed nothing since
    StockInformation both(m_printer, MediaPreferences(folderName()));
    std::string listed;
    both.resetStocksByType(StockType::user);
    while (both.hasMoreStocksByType()) {
        const Stock& stock = *both.getNextStockByType();
        listed += stock.getKey().getText().toNarrow() + (stock.isFavorite() ? "* " : " ");
    }
    EXPECT_EQ(listed, "1 4 5* 6* 7* 8* 9* 10* mine 11 yours 2 ");
    EXPECT_NE(m_folder.read("omedpref.omp").find(">12345<"), std::string::npos);
}

TEST_F(StockInformationTest, WritersAtATimeLoseNothing) {
    constexpr std::size_t writers = 8;
    constexpr int adds = 25;
    std::array<std::thread, writers> threads;
    for (std::size_t writer = 0; writer < writers; ++writer) {
        threads[writer] = std::thread([this, writer] {
            NonDriverBasedPrinter printer(6, 2, 1, u"", true);
            for (int count = 0; count < adds; ++count) {
                StockInformation stocks(printer, MediaPreferences(folderName()));
                Stock stock = *stockOf("media-col{media-color=red}");
                stock.setKeyFromText(
                    CXString::Format(u"%d of %d", count, static_cast<int>(writer)));
                stocks.addStock(stock);
                stocks.save();
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    MediaPreferences preferences(folderName());
    EXPECT_EQ(preferences.getUserStocks()->getCount(), 10U + writers * adds);
    EXPECT_EQ(std::ranges::distance(std::filesystem::directory_iterator(m_folder.path())), 1)
        << "no file is left beside it";
}

TEST_F(StockInformationTest, ThousandsOfPapersTakeNoSquareOfTime) {
    FeatureSettings ticket;
    AttrNodeList& overrides = *ticket.getAttrNodeList()->addSetOf(AttrID(u"page-overrides"));
    for (std::int32_t i = 0; i < 10000; ++i) {
        FeatureSettings member(overrides.addCollection(AttrID(u"value")));
        member.setLong(_FI(feature::mediaWeightMetric), i);
    }
    m_stocks.setSettings(&ticket);
    m_stocks.setSettings(&ticket);
    m_stocks.resetStocksByType(StockType::transient);
    const Stock* const first = m_stocks.getNextStockByType();
    EXPECT_EQ(first->getKey().getText(), u"11");
    EXPECT_EQ(m_stocks.getUseCount(*first), 1U);
    EXPECT_TRUE(m_stocks.hasKey(FeatureValue(feature::media, u"10010"), true, StockType::user));
}

} // namespace
} // namespace zent::test
