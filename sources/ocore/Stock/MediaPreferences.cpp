#include "ocore/Stock/MediaPreferences.h"

#include <map>
#include <string_view>
#include <utility>

#include "ocore/AnlXlate/AnlTranslatorForXml.h"
#include "ocore/Attributes/AttrNames.h"
#include "ocore/Attributes/AttrValueFactory.h"
#include "ocore/Faults/Trace.h"
#include "ocore/OrdoParse/OrdoParseException.h"
#include "platform/Files.h"
#include "platform/System.h"

namespace zent {

namespace {

constexpr const char16_t* currentFile = u"omedpref.omp";
constexpr const char16_t* olderFile = u"omedpr35.omp";

constexpr const char16_t* userStocksAttribute = u"media-user-defined";
constexpr const char16_t* userFavoritesAttribute = u"media-favorites-user-defined";
constexpr const char16_t* printerFavoritesAttribute = u"media-favorites-printer";

CXString pathOf(const CXString& folder, const char16_t* fileName) {
    return folder + platform::pathSeparator + fileName;
}

/// Whether there is a file. One of which the system can't say whether it exists isn't taken for
/// missing, since the next save() would put the default library in its place.
bool isThere(const CXString& path) {
    const platform::FileKind kind = platform::getFileKind(path);
    if (kind == platform::FileKind::unknown) {
        trace::systemErrorText(platform::getLastError(), traceLevel::xmlLayer);
        raiseOrdoParse(ordoParseCode::openForReadingFailed,
                       "MediaPreferences::MediaPreferences(): Failed to find out about %s.\r\n",
                       path);
    }
    return kind != platform::FileKind::missing;
}

void addFavorite(AttrNodeList& favorites, const CXString& key, AVTE type) {
    favorites.addNode(
        AttrNode(attrNames::value(), AttrValueFactory::createSimpleAttrValue(type, key), false));
}

/// Takes over the favourites of an older file: whatever they describe, the first stock becomes the
/// favourite.
void markFirst(const AttrNodeList& favorites, StockList& stocks, StockType kind) {
    // Without a stock nothing is kept for the next save() either: it would be kept by its key,
    // which is the number 0 there, and the numbers of values begin at 1.
    const auto described = StockList::createFromList(favorites, kind);
    if (described->getCount() != 0 && stocks.getCount() != 0) {
        stocks.getStockAt(0).setFavorite(true);
    }
}

} // namespace

MediaPreferences::MediaPreferences(const CXString& folder) : m_folder(folder) {
    // A file that is there but can't be read fails the reading. Taken for missing, it would be lost
    // by the next save().
    if (isThere(pathOf(folder, currentFile))) {
        m_path = pathOf(folder, currentFile);
    } else if (isThere(pathOf(folder, olderFile))) {
        m_path = pathOf(folder, olderFile);
        m_isOldFile = true;
    }
    if (!m_path.isEmpty()) {
        m_list = std::make_unique<AttrNodeList>();
        OmpTranslator().anlFromFile(m_path, m_list.get());
    }
}

std::unique_ptr<platform::LockedFile> MediaPreferences::lock(const CXString& folder) {
    const CXString path = pathOf(folder, currentFile);
    auto lock = platform::LockedFile::lock(path);
    if (lock == nullptr) {
        trace::systemErrorText(platform::getLastError(), traceLevel::xmlLayer);
        raiseOrdoParse(ordoParseCode::openForWritingFailed,
                       "MediaPreferences::lock(): Failed to lock %s.\r\n", path);
    }
    return lock;
}

std::unique_ptr<StockList> MediaPreferences::getUserStocks() {
    if (m_list == nullptr) {
        return StockList::createDefaultLibrary();
    }
    const AttrNodeList* described = nullptr;
    auto stocks = std::as_const(*m_list).OrdoAttrToList(&described, AttrID(userStocksAttribute))
                      ? StockList::createFromList(*described, StockType::user)
                      : std::make_unique<StockList>();
    applyFavorites(userFavoritesAttribute, *stocks, StockType::user);
    return stocks;
}

void MediaPreferences::applyPrinterFavorites(StockList& printerStocks) {
    m_foreignFavorites.clear();
    if (m_list != nullptr) {
        applyFavorites(printerFavoritesAttribute, printerStocks, StockType::printer);
    }
}

void MediaPreferences::applyFavorites(const char16_t* attribute, StockList& stocks,
                                      StockType kind) {
    const AttrNodeList* favorites = nullptr;
    if (!std::as_const(*m_list).OrdoAttrToList(&favorites, AttrID(attribute))) {
        return;
    }
    if (m_isOldFile) {
        markFirst(*favorites, stocks, kind);
    } else {
        markNamed(*favorites, stocks);
    }
}

void MediaPreferences::markNamed(const AttrNodeList& favorites, StockList& stocks) {
    std::map<std::u16string_view, Stock*> stockOfKey; // of several with one key the first
    for (std::uint32_t i = 0; i < stocks.getCount(); ++i) {
        Stock& stock = stocks.getStockAt(i);
        stockOfKey.emplace(stock.getKey().getText().view(), &stock); // the stock holds the text
    }
    for (std::uint32_t i = 0; i < favorites.getNumberOfNodes(); ++i) {
        const AttrNode& favorite = favorites.getNodeAt(i);
        const AttrValue& value = favorite.getAttrValue();
        if (favorite.getAttrID() != attrNames::value() || !value.isPrimitiveString()) {
            continue; // it has no key, and so names no stock
        }
        const CXString key = value.getIppValue();
        if (const auto found = stockOfKey.find(key.view()); found != stockOfKey.end()) {
            found->second->setFavorite(true);
        } else {
            m_foreignFavorites.push_back({key, value.getAttrValueType()});
        }
    }
}

AttrNodeList MediaPreferences::listOf(const StockList& stocks) const {
    AttrNodeList list;
    AttrNodeList& userStocks = *list.addSetOf(AttrID(userStocksAttribute));
    AttrNodeList& userFavorites = *list.addSetOf(AttrID(userFavoritesAttribute));
    AttrNodeList& printerFavorites = *list.addSetOf(AttrID(printerFavoritesAttribute));
    for (std::uint32_t i = 0; i < stocks.getCount(); ++i) {
        const Stock& stock = stocks.getStockAt(i);
        const FeatureValue& key = stock.getKey();
        if (stock.getKind() == StockType::user) {
            *userStocks.addCollection(attrNames::value()) = stock.getAttrNodeList();
        }
        if (stock.isFavorite() && stock.getKind() == StockType::user) {
            addFavorite(userFavorites, key.getText(), key.getType());
        } else if (stock.isFavorite() && stock.getKind() == StockType::printer) {
            addFavorite(printerFavorites, key.getText(), key.getType());
        }
    }
    for (const ForeignFavorite& favorite : m_foreignFavorites) {
        addFavorite(printerFavorites, favorite.key, favorite.type);
    }
    return list;
}

void MediaPreferences::save(const StockList& stocks, platform::LockedFile& lock) {
    AttrNodeList list = listOf(stocks);
    const CXString path = pathOf(m_folder, currentFile);
    ByteBuffer document;
    OmpTranslator().anlToBuffer(list, &document);
    if (!lock.replace(document.bytes())) {
        trace::systemErrorText(platform::getLastError(), traceLevel::xmlLayer);
        raiseOrdoParse(ordoParseCode::openForWritingFailed,
                       "MediaPreferences::save(): Failed to put the new file into the place of "
                       "%s.\r\n",
                       path);
    }
    m_list = std::make_unique<AttrNodeList>(std::move(list));
    m_path = path;
    m_isOldFile = false;
}

} // namespace zent
