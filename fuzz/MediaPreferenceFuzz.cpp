// Hostile media libraries: the file of a user's stocks, in both of its forms. What can be read must
// be saved, or the file left as it was, and what was saved be read again with the same stocks and
// favourites. The same document serves as a ticket whose media meet that library.
//
// Input: the bytes of a file.

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include "ocore/AnlXlate/AnlTranslatorForXml.h"
#include "ocore/Attributes/IppList.h"
#include "ocore/Faults/Exceptions.h"
#include "ocore/OrdoParse/OrdoParseException.h"
#include "ocore/Printer/NonDriverBasedPrinter.h"
#include "ocore/Resources/ResourceLibrary.h"
#include "ocore/Stock/StockInformation.h"
#include "ocore/Stock/StockList.h"
#include "platform/Files.h"

namespace zent {

namespace {

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// What all inputs share: a folder for the files, and a printer with stocks of its own.
class Setting {
public:
    Setting() {
        const CXString program(platform::getModulePath());
        ResourceLibrary::setPath(program.left(program.findLast(platform::pathSeparator) + 1) +
                                 u"zenres27.dll");
        std::filesystem::create_directories(m_folder);
    }
    Setting(const Setting&) = delete;
    Setting& operator=(const Setting&) = delete;
    ~Setting() {
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }

    MediaPreferences readPreferences() const {
        return MediaPreferences(CXString(m_folder.string().c_str()));
    }
    void write(const char* name, const std::uint8_t* data, std::size_t size) const {
        std::ofstream(m_folder / name, std::ios::binary)
            .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }
    void remove(const char* name) const { std::filesystem::remove(m_folder / name); }
    std::string read(const char* name) const {
        std::ifstream file(m_folder / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    Printer& getPrinter() { return m_printer; }

private:
    std::filesystem::path m_folder{
        std::filesystem::temp_directory_path() /
        ("zent-media-preference-fuzz-" + std::to_string(std::random_device()()))};
    NonDriverBasedPrinter m_printer{6, 2, 1, u"", true};
};

Setting& setting() {
    static Setting shared;
    return shared;
}

/// Whether a member is read back. One without content is written, but not read back.
bool isReadBack(const AttrValue& value) {
    return value.isList()
               ? static_cast<const IppList&>(value).getAttrNodeList().getNumberOfNodes() != 0
               : !value.getIppValue().isEmpty();
}

bool isReadBack(const Stock& stock) {
    const AttrNodeList stored = stock.getAttrNodeList();
    for (std::uint32_t i = 0; i < stored.getNumberOfNodes(); ++i) {
        if (isReadBack(stored.getNodeAt(i).getAttrValue())) {
            return true;
        }
    }
    return false;
}

/// Whether a text comes back as it was: a document can't hold some characters, and holds others in
/// another form.
bool keepsItsText(const Stock& stock) {
    for (const char16_t unit : stock.getKey().getText().view()) {
        if (unit < u' ' || (unit >= 0xD800 && unit < 0xE000) || unit >= 0xFFFE) {
            return false;
        }
    }
    return true;
}

void requireSameStocks(const StockList& saved, const StockList& read) {
    std::uint32_t place = 0;
    bool keysAreKept = true;
    for (std::uint32_t i = 0; i < saved.getCount(); ++i) {
        const Stock& stock = saved.getStockAt(i);
        if (!isReadBack(stock)) {
            continue;
        }
        require(place < read.getCount());
        const Stock& other = read.getStockAt(place++);
        keysAreKept = keysAreKept && keepsItsText(stock);
        require(!keysAreKept || stock.getKey() == other.getKey());
    }
    require(place == read.getCount());
}

/// The first stock of a key is the one that a favourite names.
void requireFavorites(const StockList& saved, const StockList& read) {
    for (std::uint32_t i = 0; i < saved.getCount(); ++i) {
        const Stock& stock = saved.getStockAt(i);
        if (!stock.isFavorite() || !stock.hasKey() || !keepsItsText(stock)) {
            continue;
        }
        bool isMarked = false;
        for (std::uint32_t j = 0; j < read.getCount() && !isMarked; ++j) {
            isMarked =
                read.getStockAt(j).getKey() == stock.getKey() && read.getStockAt(j).isFavorite();
        }
        require(isMarked);
    }
}

struct Library {
    MediaPreferences preferences;
    StockList userStocks;
    StockList printerStocks;
};

std::unique_ptr<Library> readLibrary() {
    auto library = std::make_unique<Library>(
        Library{setting().readPreferences(),
                {},
                *StockList::createFromCapabilities(setting().getPrinter().getCapabilities())});
    library->userStocks = *library->preferences.getUserStocks();
    library->preferences.applyPrinterFavorites(library->printerStocks);
    return library;
}

/// Saves the library. A library that can't be written must leave the file as it was.
void saveAndReadAgain(Library& library) {
    const std::string before = setting().read("omedpref.omp");
    StockList all(library.printerStocks);
    all.addAll(library.userStocks);
    try {
        library.preferences.save(all, *MediaPreferences::lock(library.preferences.getFolder()));
    } catch (const OrdoParseException&) {
        require(setting().read("omedpref.omp") == before);
        return;
    }
    const auto again = readLibrary();
    require(!again->preferences.isOldFile());
    requireSameStocks(library.userStocks, again->userStocks);
    requireFavorites(library.userStocks, again->userStocks);
    requireFavorites(library.printerStocks, again->printerStocks);
}

/// The document as a ticket, twice: each level that asks for media is counted, and goes on asking.
void useAsTicket(const std::uint8_t* data, std::size_t size) {
    FeatureSettings ticket;
    OmpTranslator().anlFromBuffer({data, size}, ticket.getAttrNodeList());
    StockInformation stocks(setting().getPrinter(), setting().readPreferences());
    stocks.setSettings(&ticket);
    stocks.setSettings(&ticket);
    StockList own;
    for (stocks.resetStocksByType(StockType::transient); stocks.hasMoreStocksByType();) {
        own.addStock(*stocks.getNextStockByType());
    }
    for (own.resetStocks(); own.hasMoreStocks();) {
        const Stock& stock = *own.getNextStock();
        require(stocks.isInUse(stock));
        stocks.replaceStock(stock);
        require(stocks.isInUse(stock));
    }
    for (own.resetStocks(); own.hasMoreStocks();) {
        const Stock& stock = *own.getNextStock();
        stocks.removeStock(stock);
        require(!stocks.isInUse(stock));
    }
}

void runOn(const char* name, const std::uint8_t* data, std::size_t size) {
    setting().write(name, data, size);
    std::unique_ptr<Library> library;
    try {
        library = readLibrary();
    } catch (const TarvoException&) {
        // The document is no media library.
    }
    try {
        if (library != nullptr) {
            saveAndReadAgain(*library);
            useAsTicket(data, size);
        }
    } catch (const UnknownFeatureRequestException&) {
        // No more values can be taken while so many are held.
    } catch (const AttributeTypeMismatchException&) {
        // A stock has another shape than stocks have, such as a number for its size.
    }
    setting().remove("omedpref.omp");
    setting().remove("omedpr35.omp");
}

} // namespace

} // namespace zent

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zent::runOn("omedpref.omp", data, size);
    zent::runOn("omedpr35.omp", data, size);
    return 0;
}
