// A ticket holds its media by value, in each level that asks for some, and other programs change
// it. So the ticket is walked anew for each refresh. Every level is matched with a known stock and
// then rewritten to ask for just that one, with its logical id, by which later changes of the stock
// find the level again. The library may change meanwhile too: saving compares with what was last
// read or written, and lays only one's own changes over the present file.

#include "ocore/Stock/StockInformation.h"

#include <algorithm>
#include <map>
#include <utility>

#include "ocore/Attributes/IppList.h"
#include "ocore/Faults/Exceptions.h"
#include "ocore/Faults/Trace.h"
#include "ocore/FeatureSettings/FeatureEnum.h"

namespace zent {

namespace {

/// Whether a level names media twice. Such a level contradicts itself, and would lose a part if it
/// were rewritten.
bool asksTwice(const AttrNodeList& level) {
    return level.countNodes(_FI(feature::media).getAttrID()) > 1 ||
           level.countNodes(_FI(feature::mediaCol).getAttrID()) > 1;
}

using StocksById = std::map<std::uint32_t, const Stock*>;

StocksById mapById(const StockList& stocks) {
    StocksById map;
    for (std::uint32_t i = 0; i < stocks.getCount(); ++i) {
        map.emplace(stocks.getStockAt(i).getLogicalID(), &stocks.getStockAt(i));
    }
    return map;
}

/// Finds the stock of a logical id that is of the same kind as another stock; null if there is
/// none.
const Stock* findSame(const StocksById& map, const Stock& other) {
    const auto found = map.find(other.getLogicalID());
    return found == map.end() || found->second->getKind() != other.getKind() ? nullptr
                                                                             : found->second;
}

/// The stocks of a media library as another program has left it, by kind and key.
class Library {
public:
    explicit Library(StockList& stocks) : m_stocks(stocks) {
        for (std::uint32_t i = 0; i < stocks.getCount(); ++i) {
            Stock& stock = stocks.getStockAt(i);
            m_byKey.emplace(keyOf(stock), &stock);
        }
    }

    Stock* find(const Stock& other) const {
        const auto found = m_byKey.find(keyOf(other));
        return found == m_byKey.end() ? nullptr : found->second;
    }
    Stock& add(const Stock& stock) {
        Stock* const added = m_stocks.addStock(stock);
        m_byKey.emplace(keyOf(*added), added);
        return *added;
    }
    void remove(const Stock& other) {
        if (const Stock* const stock = find(other)) {
            m_byKey.erase(keyOf(other));
            m_stocks.removeStock(stock);
        }
    }
    /// Gives a stock as its key the lowest number that isn't yet that of a user's stock.
    void number(Stock& stock) const {
        for (std::uint32_t number = 1; find(stock) != nullptr; ++number) {
            stock.setKey(
                FeatureValue::fromText(_FI(feature::media), CXString::Format(u"%u", number)));
        }
    }

private:
    using Key = std::pair<StockType, std::int32_t>;
    static Key keyOf(const Stock& stock) { return {stock.getKind(), stock.getKey().getValue()}; }

    StockList& m_stocks;
    std::map<Key, Stock*> m_byKey;
};

bool isSame(const AttrNodeList& a, const AttrNodeList& b);

bool isSame(const AttrNode& a, const AttrNode& b) {
    const AttrValue& first = a.getAttrValue();
    const AttrValue& second = b.getAttrValue();
    if (a.getAttrID() != b.getAttrID() || first.getIppSyntax() != second.getIppSyntax()) {
        return false;
    }
    return first.isList() ? isSame(static_cast<const IppList&>(first).getAttrNodeList(),
                                   static_cast<const IppList&>(second).getAttrNodeList())
                          : first.getIppValue() == second.getIppValue();
}

/// Compares lists node by node, since their own comparison looks at their lengths alone.
bool isSame(const AttrNodeList& a, const AttrNodeList& b) {
    bool same = a.getNumberOfNodes() == b.getNumberOfNodes();
    for (std::uint32_t i = 0; same && i < a.getNumberOfNodes(); ++i) {
        same = isSame(a.getNodeAt(i), b.getNodeAt(i));
    }
    return same;
}

bool isStoredAlike(const Stock& a, const Stock& b) {
    return a.isFavorite() == b.isFavorite() && isSame(a.getAttrNodeList(), b.getAttrNodeList());
}

} // namespace

StockInformation::StockInformation(Printer& printer, MediaPreferences preferences)
    : m_printer(printer), m_preferences(std::move(preferences)) {
    const auto userStocks = m_preferences.getUserStocks();
    const auto printerStocks = StockList::createFromCapabilities(printer.getCapabilities());
    m_preferences.applyPrinterFavorites(*printerStocks);
    for (std::uint32_t i = 0; i < printerStocks->getCount(); ++i) {
        insert(m_printerStocks, printerStocks->getStockAt(i));
    }
    addUserStocks(*userStocks);
    m_saved = getAll();
}

// Stocks

void StockInformation::addUserStocks(const StockList& stocks) {
    for (std::uint32_t i = 0; i < stocks.getCount(); ++i) {
        insert(m_stocks, stocks.getStockAt(i));
    }
    // The numbers are given only when all names are known, so that no stock gets one that is the
    // name of a later stock.
    for (std::uint32_t i = 0; i < m_stocks.getCount(); ++i) {
        nameStock(m_stocks.getStockAt(i));
    }
}

/// Gives a stock its id. Ids are drawn in rising order, so that their order is that of the walk.
Stock* StockInformation::insert(StockList& list, const Stock& stock) {
    Stock* const entry = list.addStock(stock);
    entry->assignNewLogicalID();
    m_index.add(*entry);
    return entry;
}

/// Gives a stock without a key the lowest number that no stock has as its key yet.
void StockInformation::nameStock(Stock& stock) {
    if (stock.hasKey()) {
        return;
    }
    FeatureValue key;
    for (bool isFound = false; !isFound; ++m_lowestNumber) {
        key = FeatureValue::fromText(_FI(feature::media), CXString::Format(u"%u", m_lowestNumber));
        isFound = !m_index.hasKey(key) && m_generatedKeys.insert(key.getValue()).second;
    }
    m_index.remove(stock);
    stock.setKey(key);
    m_index.add(stock);
}

void StockInformation::releaseKey(FeatureValue key) {
    m_generatedKeys.erase(key.getValue());
    m_lowestNumber = 1; // the key that is free now may be a number
}

/// Forgets a stock that is about to be removed: its usage and its place in the index.
void StockInformation::forget(const Stock& stock) {
    m_usage.erase(&stock);
    m_index.remove(stock);
    releaseKey(stock.getKey());
}

const Stock* StockInformation::addStock(const Stock& stock) {
    Stock* const entry = insert(m_stocks, stock);
    nameStock(*entry);
    return entry;
}

void StockInformation::replaceStock(const Stock& stock) {
    Stock* const entry = m_index.findBestMatch(stock);
    if (entry == nullptr || entry == &stock) {
        return;
    }
    Stock replacement(stock);
    replacement.copyLogicalID(*entry);
    m_index.remove(*entry);
    if (entry->getKey() != stock.getKey()) {
        releaseKey(entry->getKey());
    }
    *entry = std::move(replacement);
    m_index.add(*entry);
    if (isInUse(*entry)) {
        refreshUsage();
    }
}

void StockInformation::removeStock(const Stock& stock) {
    Stock* const entry = m_index.findBestMatch(stock);
    if (entry == nullptr || !m_stocks.contains(entry)) {
        return;
    }
    if (entry->getKind() == StockType::user && isInUse(*entry)) {
        entry->setKind(StockType::transient);
        return;
    }
    forget(*entry);
    m_stocks.removeStock(entry);
}

void StockInformation::setFavorite(const Stock& stock, bool favorite) {
    if (Stock* const entry = m_index.findBestMatch(stock)) {
        entry->setFavorite(favorite);
    }
}

const Stock* StockInformation::findStock(const Stock& stock) const {
    // For one of these its id gives the stock itself.
    const Stock* const entry = findBestMatch(stock);
    return entry == nullptr ? &stock : entry;
}

bool StockInformation::hasKey(FeatureValue key, bool ofAnyKind, StockType kind) const {
    return ofAnyKind ? m_index.hasKey(key) : m_index.hasKey(key, kind);
}

StockList StockInformation::getAll() const {
    StockList all(m_printerStocks);
    all.addAll(m_stocks);
    return all;
}

void StockInformation::save() { save(*MediaPreferences::lock(m_preferences.getFolder())); }

void StockInformation::save(platform::LockedFile& lock) {
    StockInformation present(m_printer, MediaPreferences(m_preferences.getFolder()));
    StockList library = present.getAll();
    layChangesOver(library);
    present.m_preferences.save(library, lock);
    m_preferences = std::move(present.m_preferences);
    m_saved = getAll();
}

/// Lays what was changed here over the library as it is now. A stock is the same one by its logical
/// id here, and by its kind and key in the library.
void StockInformation::layChangesOver(StockList& stocks) const {
    Library library(stocks);
    const StockList all = getAll();
    const StocksById present = mapById(all);
    const StocksById saved = mapById(m_saved);
    for (const auto& [id, stock] : saved) {
        if (stock->getKind() == StockType::user && findSame(present, *stock) == nullptr) {
            library.remove(*stock);
        }
    }
    for (const auto& [id, stock] : present) {
        const Stock* const before = findSame(saved, *stock);
        if (stock->getKind() == StockType::transient ||
            (before != nullptr && isStoredAlike(*before, *stock))) {
            continue;
        }
        Stock* const there = library.find(before == nullptr ? *stock : *before);
        if (there == nullptr) {
            library.add(*stock);
        } else if (before != nullptr || !m_generatedKeys.contains(stock->getKey().getValue())) {
            *there = *stock;
        } else { // another program has given a stock the same number meanwhile
            Stock numbered(*stock);
            library.number(numbered);
            library.add(numbered);
        }
    }
}

// Usage

void StockInformation::setSettings(FeatureSettings* settings) {
    m_settings = settings;
    refreshUsage();
    m_stocks.removeStocksIf([&](const Stock& stock) {
        const bool isForgotten = stock.getKind() == StockType::transient && !isInUse(stock);
        if (isForgotten) {
            forget(stock);
        }
        return isForgotten;
    });
}

void StockInformation::refreshUsage() {
    m_usage.clear();
    if (m_settings != nullptr) {
        refreshUsage(*m_settings->getAttrNodeList(), TJTF_ANY);
    }
}

void StockInformation::refreshUsage(AttrNodeList& level, FeatureEnum feature) {
    const _FI mediaCol(feature::mediaCol);
    try {
        FeatureSettings view(&level);
        recordUse(view, feature);
    } catch (const TarvoException& exception) {
        trace::output(CXString::Format(u"The media of one level of the ticket are left alone: %s",
                                       exception.getMessage()));
    }
    for (std::uint32_t i = 0; i < level.getNumberOfNodes(); ++i) {
        AttrNode& node = level.getNodeAt(i);
        // A description that was just put there is no level of the ticket, whatever it holds.
        if (node.getAttrValue().isList() && node.getAttrID() != mediaCol.getAttrID()) {
            refreshUsage(static_cast<IppList&>(node.getAttrValue()).getAttrNodeList(),
                         _FI::isFeatureName(node.getName()) ? _FI(node.getName()).getFeature()
                                                            : feature);
        }
    }
}

void StockInformation::recordUse(FeatureSettings& level, FeatureEnum feature) {
    const _FI mediaKey(feature::mediaKey);
    if (asksTwice(*level.getAttrNodeList())) {
        return;
    }
    const auto asked = Stock::createFromSettings(level, StockType::transient);
    if (asked == nullptr) {
        return;
    }
    const Stock* const stock = findOrAdd(*asked);
    const bool isNamed = level.isSpecified(mediaKey);
    stock->applyTo(level);
    // A description that came with a name keeps one, since papers that are otherwise alike differ
    // in it alone, and what a stock puts into a ticket doesn't hold it.
    if (isNamed && stock->getSource() == StockSource::description) {
        level.setFeatureValue(mediaKey, stock->hasKey() ? stock->getKey() : asked->getKey());
    }

    Usage& usage = m_usage[stock];
    ++usage.count;
    if (std::ranges::find(usage.features, feature) == usage.features.end()) {
        usage.features.push_back(feature);
    }
}

const Stock* StockInformation::findOrAdd(Stock& asked) {
    const Stock* found = findBestMatch(asked);
    if (found == nullptr && asked.getLogicalID() != 0) {
        // The id was drawn by another StockInformation, which had this ticket before.
        asked.removeLogicalID();
        found = findBestMatch(asked);
    }
    return found == nullptr ? addStock(asked) : found;
}

const StockInformation::Usage* StockInformation::findUsage(const Stock& stock) const {
    const auto found = m_usage.find(findStock(stock));
    return found == m_usage.end() ? nullptr : &found->second;
}

std::uint32_t StockInformation::getUseCount(const Stock& stock) const {
    const Usage* const usage = findUsage(stock);
    return usage == nullptr ? 0 : usage->count;
}

std::vector<FeatureEnum> StockInformation::getUsingFeatures(const Stock& stock) const {
    const Usage* const usage = findUsage(stock);
    return usage == nullptr ? std::vector<FeatureEnum>() : usage->features;
}

// The walk

void StockInformation::resetStocksByType(std::optional<StockType> kind) {
    m_walked = 0;
    m_walkedKind = kind;
}

const Stock* StockInformation::findNextInWalk() const {
    const Stock* stock = m_index.findNext(m_walked);
    while (stock != nullptr && m_walkedKind && stock->getKind() != *m_walkedKind) {
        stock = m_index.findNext(stock->getLogicalID());
    }
    return stock;
}

bool StockInformation::hasMoreStocksByType() const { return findNextInWalk() != nullptr; }

const Stock* StockInformation::getNextStockByType() {
    const Stock* const stock = findNextInWalk();
    if (stock == nullptr) {
        Raise<NodeAccessOutOfBoundsException>()(
            "StockInformation::getNextStockByType(): No more Stocks to get. Caller failed to test "
            "with hasMoreStocksByType() first!\r\n");
    }
    m_walked = stock->getLogicalID();
    return stock;
}

} // namespace zent
