// Stocks match by their logical ids or, without one, if they have the same description. So the
// stocks are grouped by description, and a search looks into one group, by key. All containers are
// ordered by logical ids, which are drawn in rising order: the first of several matches is the
// oldest stock.

#include "ocore/Stock/StockIndex.h"

#include <algorithm>

namespace zent {

namespace {

/// The group of a stock: its description. Stocks by name have the empty text, which no description
/// has.
std::u16string groupOf(const Stock& stock) {
    return stock.getSource() == StockSource::name ? std::u16string() : stock.getDescriptionText();
}

} // namespace

void StockIndex::add(Stock& stock) {
    const std::uint32_t id = stock.getLogicalID();
    const std::int32_t key = stock.getKey().getValue();
    Group& group = m_groups[groupOf(stock)];
    m_stocks[id] = &stock;
    group.all.insert(id);
    group.byKey[key].insert(id);
    m_idsByKey[key].insert(id);
}

void StockIndex::remove(const Stock& stock) {
    const std::uint32_t id = stock.getLogicalID();
    const std::int32_t key = stock.getKey().getValue();
    const auto group = m_groups.find(groupOf(stock));
    group->second.all.erase(id);
    group->second.byKey[key].erase(id);
    if (group->second.all.empty()) {
        m_groups.erase(group);
    }
    m_idsByKey[key].erase(id);
    m_stocks.erase(id);
}

Stock* StockIndex::firstOf(const IdsByKey& idsByKey, FeatureValue key) const {
    const auto ids = idsByKey.find(key.getValue());
    return ids == idsByKey.end() || ids->second.empty() ? nullptr
                                                        : m_stocks.at(*ids->second.begin());
}

Stock* StockIndex::findBestMatch(const Stock& stock) const {
    if (stock.getLogicalID() != 0) {
        const auto found = m_stocks.find(stock.getLogicalID());
        return found == m_stocks.end() ? nullptr : found->second;
    }
    const auto found = m_groups.find(groupOf(stock));
    if (found == m_groups.end()) {
        return nullptr;
    }
    const Group& group = found->second;
    if (stock.getSource() == StockSource::description && !stock.hasKey()) {
        return m_stocks.at(*group.all.begin());
    }
    Stock* const named = firstOf(group.byKey, stock.getKey());
    return named == nullptr && stock.getSource() == StockSource::description
               ? firstOf(group.byKey, FeatureValue())
               : named;
}

const Stock* StockIndex::findNext(std::uint32_t logicalID) const {
    const auto found = m_stocks.upper_bound(logicalID);
    return found == m_stocks.end() ? nullptr : found->second;
}

bool StockIndex::hasKey(FeatureValue key) const { return firstOf(m_idsByKey, key) != nullptr; }

bool StockIndex::hasKey(FeatureValue key, StockType kind) const {
    const auto ids = m_idsByKey.find(key.getValue());
    return ids != m_idsByKey.end() && std::ranges::any_of(ids->second, [&](std::uint32_t id) {
               return m_stocks.at(id)->getKind() == kind;
           });
}

} // namespace zent
