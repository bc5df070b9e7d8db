#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <vector>

#include "ocore/Printer/Printer.h"
#include "ocore/Stock/MediaPreferences.h"
#include "ocore/Stock/StockIndex.h"
#include "ocore/Stock/StockList.h"

namespace zent {

/// All the stocks that a session sees: those of the printer, those of the user's library, and those
/// that exist only because a ticket asks for them. It gives each a logical id, says what the ticket
/// uses, and keeps the ticket and its stocks in step.
///
/// Stocks are handed out to be read; what changes them is done here. A pointer is valid until its
/// stock is removed. A Stock that is handed in stands for the entry that findStock() gives.
class StockInformation {
public:
    /// The printer must outlive the object. Raises what reading the media library does.
    explicit StockInformation(Printer& printer, MediaPreferences preferences = MediaPreferences());
    StockInformation(const StockInformation&) = delete;
    StockInformation& operator=(const StockInformation&) = delete;
    ~StockInformation() = default;

    Printer& getPrinter() const { return m_printer; }

    /// Makes this the ticket at hand and refreshes the usage. What earlier tickets asked for and
    /// this one doesn't is forgotten, stocks of the library and the printer excepted. The settings
    /// must live until others, or none (null), are set.
    void setSettings(FeatureSettings* settings);
    /// Finds out anew what the ticket uses. Each level of it that asks for media gets a stock, a
    /// new one if none matches, and is rewritten to ask for just that stock. Media that can't be
    /// understood are left alone.
    void refreshUsage();

    /// Adds a copy, with a logical id of its own and, if it has no key, a number as key.
    const Stock* addStock(const Stock& stock);
    /// Gives the entry the other's content, but not its logical id, and rewrites the ticket where
    /// the entry is in use.
    void replaceStock(const Stock& stock);
    /// A stock of the library that the ticket uses stays, as the ticket's own; those of the printer
    /// stay in any case.
    void removeStock(const Stock& stock);
    void setFavorite(const Stock& stock, bool favorite);

    /// The first stock of the highest grade in the order of the walk below; null if none matches.
    const Stock* findBestMatch(const Stock& stock) const { return m_index.findBestMatch(stock); }
    /// The stock itself if it is one of these, else its best match, else the stock itself.
    const Stock* findStock(const Stock& stock) const;
    /// Whether a stock of any kind, or of the given one, has this key.
    bool hasKey(FeatureValue key, bool ofAnyKind, StockType kind) const;

    bool isInUse(const Stock& stock) const { return getUseCount(stock) != 0; }
    /// How many levels of the ticket ask for a stock.
    std::uint32_t getUseCount(const Stock& stock) const;
    /// The features in which a stock is used, such as "cover-front"; TJTF_ANY for the job itself.
    std::vector<FeatureEnum> getUsingFeatures(const Stock& stock) const;

    /// A walk over the stocks, the printer's first, of one kind or of all. Stocks may be added and
    /// removed on the way.
    void resetStocksByType(std::optional<StockType> kind = std::nullopt);
    bool hasMoreStocksByType() const;
    /// Raises NodeAccessOutOfBoundsException at the end.
    const Stock* getNextStockByType();

    /// The folder of the media library.
    const CXString& getFolder() const { return m_preferences.getFolder(); }
    /// Lays what was changed here over the media library, as it is by now, and writes it. What
    /// others have changed meanwhile stays, unless it is the same stock: then the last one wins.
    /// Their changes don't show here.
    void save();
    /// Saves in the same way, for a caller who holds the lock of the library's folder.
    void save(platform::LockedFile& lock);

private:
    struct Usage {
        std::uint32_t count = 0;
        std::vector<FeatureEnum> features;
    };

    void addUserStocks(const StockList& stocks);
    StockList getAll() const;
    void layChangesOver(StockList& stocks) const;
    Stock* insert(StockList& list, const Stock& stock);
    void nameStock(Stock& stock);
    void forget(const Stock& stock);
    void releaseKey(FeatureValue key);
    const Usage* findUsage(const Stock& stock) const;
    const Stock* findNextInWalk() const;

    void refreshUsage(AttrNodeList& level, FeatureEnum feature);
    void recordUse(FeatureSettings& level, FeatureEnum feature);
    const Stock* findOrAdd(Stock& asked);

    Printer& m_printer;
    std::uint32_t m_walked = 0; // the logical id of the stock that the walk gave last
    std::optional<StockType> m_walkedKind;
    MediaPreferences m_preferences;
    StockList m_printerStocks;
    StockList m_stocks;
    StockIndex m_index; // the index of both lists
    StockList m_saved;  // copies of both lists, as they were when the library was read or written
    FeatureSettings* m_settings = nullptr;
    std::map<const Stock*, Usage> m_usage;
    std::set<std::int32_t> m_generatedKeys;
    std::uint32_t m_lowestNumber = 1; // all lower numbers are keys already
};

} // namespace zent
