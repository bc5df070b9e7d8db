#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>

#include "ocore/Stock/Stock.h"

namespace zent {

/// Finds stocks by what makes them match. A ticket may bring thousands of its own, and comparing
/// each with all others would take the square of their number.
///
/// Each stock has a logical id of its own; their order is that of the ids. The stocks belong to
/// someone else, who removes a stock before it changes in anything but its kind, or goes.
class StockIndex {
public:
    void add(Stock& stock);
    void remove(const Stock& stock);

    /// The stock of the highest grade by Stock::match, the first of several; null if none matches.
    Stock* findBestMatch(const Stock& stock) const;
    /// The first stock whose logical id is greater; 0 gives the first of all. Null at the end.
    const Stock* findNext(std::uint32_t logicalID) const;
    bool hasKey(FeatureValue key) const;
    bool hasKey(FeatureValue key, StockType kind) const;

private:
    using Ids = std::set<std::uint32_t>;
    using IdsByKey = std::map<std::int32_t, Ids>;
    /// The stocks of one description.
    struct Group {
        Ids all;
        IdsByKey byKey;
    };

    Stock* firstOf(const IdsByKey& idsByKey, FeatureValue key) const;

    std::map<std::uint32_t, Stock*> m_stocks;
    std::map<std::u16string, Group> m_groups; // by description; stocks by name have the empty one
    IdsByKey m_idsByKey;
};

} // namespace zent
