#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "ocore/Stock/Stock.h"

namespace zent {

class Capabilities;

/// Stocks in order, each owned. Copies are deep. Pointers to stocks stay valid until the stock is
/// removed.
///
/// A walk goes by a cursor, of which the list has one of its own; nested walks bring theirs.
class StockList {
public:
    using Cursor = std::size_t;

    StockList() = default;
    StockList(const StockList& other);
    StockList& operator=(const StockList& other);
    StockList(StockList&&) noexcept = default;
    StockList& operator=(StockList&&) noexcept = default;
    ~StockList() = default;

    /// The stocks that a list of "value" collections describes, as in a capability document or a
    /// media library. Collections that describe none are left out; a "value" that is no list raises
    /// AttributeTypeMismatchException.
    static std::unique_ptr<StockList> createFromList(const AttrNodeList& list, StockType kind);
    /// The stocks that a printer reports; none if it reports none.
    static std::unique_ptr<StockList> createFromCapabilities(const Capabilities& capabilities);
    /// What a user begins with: plain white paper, a stock without a name for each usual size, all
    /// of them favourites.
    static std::unique_ptr<StockList> createDefaultLibrary();

    std::uint32_t getCount() const { return static_cast<std::uint32_t>(m_stocks.size()); }
    /// The stock at a position below getCount().
    Stock& getStockAt(std::uint32_t position) { return *m_stocks[position]; }
    const Stock& getStockAt(std::uint32_t position) const { return *m_stocks[position]; }
    bool contains(const Stock* stock) const;
    /// Appends a copy.
    Stock* addStock(const Stock& stock);
    /// Removes the very stock, if it is here. The list's own cursor stays before what it stood
    /// before.
    void removeStock(const Stock* stock);
    /// Removes all stocks of which the predicate is true; the list's own cursor goes back to the
    /// beginning.
    template <typename Predicate>
    void removeStocksIf(Predicate predicate);
    /// Appends copies of all stocks of a list, which may be this one.
    void addAll(const StockList& other);

    void resetStocks() { m_cursor = 0; }
    bool hasMoreStocks() const { return hasMoreStocks(m_cursor); }
    /// The stock at the cursor, which moves on; raises NodeAccessOutOfBoundsException at the end.
    Stock* getNextStock() { return getNextStock(m_cursor); }
    static void resetStocks(Cursor& cursor) { cursor = 0; }
    bool hasMoreStocks(const Cursor& cursor) const { return cursor < m_stocks.size(); }
    Stock* getNextStock(Cursor& cursor);

private:
    std::vector<std::unique_ptr<Stock>> m_stocks;
    Cursor m_cursor = 0;
};

template <typename Predicate>
void StockList::removeStocksIf(Predicate predicate) {
    std::erase_if(m_stocks, [&](const auto& stock) { return predicate(std::as_const(*stock)); });
    m_cursor = 0;
}

} // namespace zent
