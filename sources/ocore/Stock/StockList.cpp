#include "ocore/Stock/StockList.h"

#include <algorithm>

#include "ocore/Attributes/AttrNames.h"
#include "ocore/Attributes/IppList.h"
#include "ocore/Capabilities/Capabilities.h"
#include "ocore/Faults/Exceptions.h"
#include "ocore/FeatureSettings/FeatureEnum.h"

namespace zent {

namespace {

/// The embedded list of a member, the given instance of its name. Raises the mismatch if it is no
/// list.
const AttrNodeList& getMemberList(const AttrNodeList& list, const AttrNode& member,
                                  std::uint32_t instance) {
    const AttrNodeList* members = nullptr;
    if (member.getAttrValue().isList()) {
        members = &static_cast<const IppList&>(member.getAttrValue()).getAttrNodeList();
    } else {
        list.OrdoAttrToList(&members, member.getAttrID(), instance);
    }
    return *members;
}

} // namespace

StockList::StockList(const StockList& other) { addAll(other); }

StockList& StockList::operator=(const StockList& other) {
    if (this != &other) {
        *this = StockList(other);
    }
    return *this;
}

std::unique_ptr<StockList> StockList::createFromList(const AttrNodeList& list, StockType kind) {
    auto stocks = std::make_unique<StockList>();
    std::uint32_t instance = 0;
    // The members are taken by position, since a look-up by instance would walk all that come
    // before it each time.
    for (std::uint32_t i = 0; i < list.getNumberOfNodes(); ++i) {
        const AttrNode& member = list.getNodeAt(i);
        if (member.getAttrID() != attrNames::value()) {
            continue;
        }
        FeatureSettings settings;
        *settings.getAttrNodeList()->addCollection(_FI(feature::mediaCol).getAttrID()) =
            getMemberList(list, member, instance++);
        if (auto stock = Stock::createFromSettings(settings, kind)) {
            stocks->m_stocks.push_back(std::move(stock));
        }
    }
    return stocks;
}

std::unique_ptr<StockList> StockList::createFromCapabilities(const Capabilities& capabilities) {
    const AttrNodeList* database = nullptr;
    capabilities.getSettings().getAttrNodeList()->OrdoAttrToList(&database,
                                                                 AttrID(u"media-col-database"));
    return database == nullptr ? std::make_unique<StockList>()
                               : createFromList(*database, StockType::printer);
}

std::unique_ptr<StockList> StockList::createDefaultLibrary() {
    constexpr std::uint32_t firstSize = 2;
    constexpr std::uint32_t lastSize = 11;
    FeatureSettings paper;
    paper.setFeatureValue(_FI(feature::mediaColor), FeatureValue(value::mediaWhite));
    paper.setFeatureValue(_FI(feature::mediaType), FeatureValue(value::mediaStationery));
    paper.setFeatureValue(_FI(feature::mediaHoleCount), FeatureValue(value::noHoles));
    auto stocks = std::make_unique<StockList>();
    for (std::uint32_t size = firstSize; size <= lastSize; ++size) {
        paper.setStockSize(StockSize(size));
        stocks->addStock(Stock(0, FeatureValue(), StockType::user, StockSource::description, paper))
            ->setFavorite(true);
    }
    return stocks;
}

bool StockList::contains(const Stock* stock) const {
    return std::ranges::find(m_stocks, stock, &std::unique_ptr<Stock>::get) != m_stocks.end();
}

Stock* StockList::addStock(const Stock& stock) {
    return m_stocks.emplace_back(std::make_unique<Stock>(stock)).get();
}

void StockList::removeStock(const Stock* stock) {
    const auto found = std::ranges::find(m_stocks, stock, &std::unique_ptr<Stock>::get);
    if (found == m_stocks.end()) {
        return;
    }
    if (static_cast<std::size_t>(found - m_stocks.begin()) < m_cursor) {
        --m_cursor;
    }
    m_stocks.erase(found);
}

void StockList::addAll(const StockList& other) {
    const std::size_t count = other.m_stocks.size();
    m_stocks.reserve(m_stocks.size() + count);
    for (std::size_t i = 0; i < count; ++i) {
        addStock(*other.m_stocks[i]);
    }
}

Stock* StockList::getNextStock(Cursor& cursor) {
    if (!hasMoreStocks(cursor)) {
        Raise<NodeAccessOutOfBoundsException>()(
            "StockList::getNextStock(): No more Stocks to get. Caller failed to test with "
            "hasMoreStocks() first!\r\n");
    }
    return m_stocks[cursor++].get();
}

} // namespace zent
