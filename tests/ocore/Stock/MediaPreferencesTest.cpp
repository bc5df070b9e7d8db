#include "ocore/Stock/MediaPreferences.h"

#include "support/OrdoDocument.h"

namespace zent::test {
namespace {

const char* const current = "omedpref.omp";
const char* const older = "omedpr35.omp";

std::string libraryOf(std::string_view content) {
    return "<omediapref>" + std::string(content) + "</omediapref>";
}

StockList stocksOf(std::string_view described, StockType kind) {
    return *StockList::createFromList(listOf(described), kind);
}

/// "plain* Ours" for two stocks, the first of them a favourite.
std::string keysOf(const StockList& stocks) {
    std::string keys;
    for (std::uint32_t i = 0; i < stocks.getCount(); ++i) {
        const Stock& stock = stocks.getStockAt(i);
        keys += (i == 0 ? "" : " ") + stock.getKey().getText().toNarrow() +
                (stock.isFavorite() ? "*" : "");
    }
    return keys;
}

void save(MediaPreferences& preferences, const StockList& stocks) {
    preferences.save(stocks, *MediaPreferences::lock(preferences.getFolder()));
}

class MediaPreferencesTest : public testing::Test {
protected:
    MediaPreferencesTest() { useResourceLibrary(); }
    MediaPreferences preferences() const { return MediaPreferences(folderName()); }
    CXString folderName() const {
        return CXString(std::filesystem::path(m_folder.path()).make_preferred().string().c_str());
    }

    ScratchFolder m_folder;
};

TEST_F(MediaPreferencesTest, LibrariesAreWrittenAsTheyWereRead) {
    const std::string golden = readTestFile("golden/media/library.omp");
    m_folder.write(current, golden);
    MediaPreferences preferences = this->preferences();
    StockList all = *preferences.getUserStocks();
    EXPECT_EQ(keysOf(all), "Letters & more plain*");
    StockList printers = stocksOf(
        "value{media-key=iso-a4-white} value{media-key=bond} value{media-key=name:Bond~90}",
        StockType::printer);
    printers.getStockAt(2).setKeyFromText(u"Bond 90");
    preferences.applyPrinterFavorites(printers);
    EXPECT_EQ(keysOf(printers), "iso-a4-white* bond Bond 90*");

    // The user's own stand where they stood; the printer's in the order of its stocks.
    StockList ordered = stocksOf("value{media-key=name:Other}", StockType::transient);
    ordered.getStockAt(0).setFavorite(true);
    ordered.addAll(all);
    ordered.addStock(printers.getStockAt(2));
    ordered.addStock(printers.getStockAt(0));
    ordered.addStock(printers.getStockAt(1));
    save(preferences, ordered);
    EXPECT_EQ(m_folder.read(current), golden);
}

TEST_F(MediaPreferencesTest, OlderFilesAreTakenOver) {
    m_folder.write(older, libraryOf("<media-user-defined syntax='1setOf'>"
                                    "<value syntax='collection'><media-key syntax='keyword'>plain"
                                    "</media-key></value><value syntax='collection'><media-key "
                                    "syntax='keyword'>bond</media-key></value>"
                                    "</media-user-defined>"
                                    "<media-favorites-user-defined syntax='1setOf'>"
                                    "<value syntax='collection'><media-key syntax='keyword'>bond"
                                    "</media-key></value></media-favorites-user-defined>"));
    const std::string before = m_folder.read(older);
    MediaPreferences preferences = this->preferences();
    EXPECT_TRUE(preferences.isOldFile());
    const auto stocks = preferences.getUserStocks();
    EXPECT_EQ(keysOf(*stocks), "plain* bond") << "the first one, whatever the favourite describes";
    save(preferences, *stocks);
    EXPECT_FALSE(preferences.isOldFile());
    EXPECT_EQ(m_folder.read(older), before);
    EXPECT_EQ(keysOf(*this->preferences().getUserStocks()), "plain* bond");
    EXPECT_FALSE(this->preferences().isOldFile());
}

TEST_F(MediaPreferencesTest, FailuresLoseNothing) {
    m_folder.write(current, "<omediapref>");
    EXPECT_EQ(ordoFailure([&] { preferences(); }).substr(0, 2), "2:");
    m_folder.write(current, libraryOf(""));
    MediaPreferences preferences = this->preferences();
    // A name that no document can hold.
    StockList unwritable = stocksOf("value{media-color=red 1=2}", StockType::user);
    EXPECT_EQ(ordoFailure([&] { save(preferences, unwritable); }).substr(0, 2), "6:");
    EXPECT_EQ(m_folder.read(current), libraryOf(""));
    // The place of the file beside is taken, then that of the file.
    std::filesystem::create_directory(m_folder.path() / ".omedpref.omp.zent-new");
    EXPECT_EQ(ordoFailure([&] { save(preferences, StockList()); }).substr(0, 3), "17:");
    EXPECT_EQ(m_folder.read(current), libraryOf(""));
    std::filesystem::remove(m_folder.path() / ".omedpref.omp.zent-new");
    std::filesystem::remove(m_folder.path() / current);
    std::filesystem::create_directory(m_folder.path() / current);
    EXPECT_EQ(ordoFailure([&] { save(preferences, StockList()); }).substr(0, 3), "17:");
    EXPECT_EQ(ordoFailure([&] { this->preferences(); }).substr(0, 3), "15:")
        << "there, but not to be read";
}

} // namespace
} // namespace zent::test
