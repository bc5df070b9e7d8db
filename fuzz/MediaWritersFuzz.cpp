// Several writers of one media library, each of which has read it at another time: whatever one has
// added, changed or removed is in the file after its turn, and nothing of what others did is lost.
// On the way files turn up that a killed writer or somebody else may leave there.
//
// Input: the acts, with a byte each for the writer, the act and the stock.

#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <string>

#include "FuzzInput.h"
#include "SameList.h"
#include "ocore/Printer/NonDriverBasedPrinter.h"
#include "ocore/Resources/ResourceLibrary.h"
#include "ocore/Stock/StockInformation.h"
#include "platform/Files.h"

namespace zent {

namespace {

namespace fs = std::filesystem;
using fuzz::FuzzInput;
using fuzz::require;

/// Stocks of the fuzzer's by their names, and whether each is a favourite.
using Stocks = std::map<std::string, bool>;

/// What all inputs share.
class Setting {
public:
    Setting() {
        const CXString program(platform::getModulePath());
        ResourceLibrary::setPath(program.left(program.findLast(platform::pathSeparator) + 1) +
                                 u"zenres27.dll");
    }
    Setting(const Setting&) = delete;
    Setting& operator=(const Setting&) = delete;
    ~Setting() {
        std::error_code ignored;
        fs::remove_all(m_folder, ignored);
    }

    void clear() {
        fs::remove_all(m_folder);
        fs::create_directories(m_folder);
    }
    const fs::path& getFolder() const { return m_folder; }
    MediaPreferences read() const { return MediaPreferences(CXString(m_folder.string().c_str())); }
    Printer& getPrinter() { return m_printer; }

private:
    fs::path m_folder{fs::temp_directory_path() /
                      ("zent-media-writers-fuzz-" + std::to_string(std::random_device()()))};
    NonDriverBasedPrinter m_printer{6, 2, 1, u"", true};
};

Setting& setting() {
    static Setting shared;
    return shared;
}

constexpr std::string_view prefix = "fuzz-";

/// Adds a stock if it is one of the fuzzer's; the default library has others.
template <typename List>
void add(Stocks& stocks, const List& stock) {
    const std::string name = stock.getKey().getText().toNarrow();
    if (name.starts_with(prefix)) {
        require(stocks.emplace(name, stock.isFavorite()).second);
    }
}

class Writer {
public:
    Writer() : m_library(setting().getPrinter(), setting().read()), m_saved(getStocks()) {}

    void add(const std::string& name) {
        if (find(name) == nullptr) {
            Stock stock(0, FeatureValue(), StockType::user, StockSource::name, FeatureSettings());
            stock.setKeyFromText(CXString(name.c_str()));
            m_library.addStock(stock);
            m_added.insert(name);
        }
    }
    void remove(const std::string& name) {
        if (const Stock* const stock = find(name)) {
            m_library.removeStock(*stock);
            m_added.erase(name);
        }
    }
    void toggleFavorite(const std::string& name) {
        if (const Stock* const stock = find(name)) {
            m_library.setFavorite(*stock, !stock->isFavorite());
        }
    }
    /// The fuzzer's stocks that the file must hold after a writer has saved, given those before.
    Stocks save(Stocks file) {
        const Stocks own = getStocks();
        for (const auto& [name, isFavorite] : m_saved) {
            if (!own.contains(name)) {
                file.erase(name);
            }
        }
        for (const auto& [name, isFavorite] : own) {
            const auto before = m_saved.find(name);
            if (m_added.contains(name) || before == m_saved.end() || before->second != isFavorite) {
                file[name] = isFavorite;
            }
        }
        m_library.save();
        m_saved = own;
        m_added.clear();
        return file;
    }

private:
    const Stock* find(const std::string& name) {
        const CXString wanted(name.c_str());
        m_library.resetStocksByType(StockType::user);
        while (m_library.hasMoreStocksByType()) {
            const Stock* const stock = m_library.getNextStockByType();
            if (stock->getKey().getText() == wanted) {
                return stock;
            }
        }
        return nullptr;
    }
    Stocks getStocks() {
        Stocks stocks;
        m_library.resetStocksByType(StockType::user);
        while (m_library.hasMoreStocksByType()) {
            zent::add(stocks, *m_library.getNextStockByType());
        }
        return stocks;
    }

    StockInformation m_library;
    Stocks m_saved;                // as the writer has read or written them
    std::set<std::string> m_added; // since then; one that was removed before is another one now
};

Stocks readFile() {
    MediaPreferences preferences = setting().read();
    const auto list = preferences.getUserStocks();
    Stocks stocks;
    for (std::uint32_t i = 0; i < list->getCount(); ++i) {
        add(stocks, list->getStockAt(i));
    }
    return stocks;
}

/// Makes a file that a killed writer leaves, or somebody who wants it to be written to.
void plant(std::uint8_t choice) {
    const fs::path folder = setting().getFolder();
    static constexpr std::array names{".omedpref.omp.zent-new", ".omedpref.omp.zent-lock"};
    const fs::path path = folder / names.at(choice % names.size());
    std::ofstream(path) << (path.string().ends_with("new") ? "half a file" : "");
}

class Play {
public:
    explicit Play(FuzzInput input) : m_input(input) {}

    void run() {
        constexpr int mostActs = 24;
        for (int acts = 0; acts < mostActs && !m_input.isAtEnd(); ++acts) {
            act();
            require(readFile() == m_file);
        }
    }

private:
    void act() {
        std::unique_ptr<Writer>& writer = m_writers.at(m_input.takeByte() % m_writers.size());
        const std::uint8_t choice = m_input.takeByte();
        constexpr std::uint8_t names = 12;
        const std::uint8_t number = m_input.takeByte();
        const std::string name = std::string(prefix) + static_cast<char>('a' + number % names);
        if (writer == nullptr || choice % 8 == 7) {
            writer = std::make_unique<Writer>();
        }
        switch (choice % 8) {
        case 0:
        case 1:
            return writer->add(name);
        case 2:
            return writer->remove(name);
        case 3:
            return writer->toggleFavorite(name);
        case 4:
        case 5:
            m_file = writer->save(m_file);
            return;
        case 6:
            return plant(number);
        default:
            return;
        }
    }

    FuzzInput m_input;
    Stocks m_file;
    std::array<std::unique_ptr<Writer>, 3> m_writers;
};

} // namespace

} // namespace zent

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zent::setting().clear();
    zent::Play({data, size}).run();
    return 0;
}
