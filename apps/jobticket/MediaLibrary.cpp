// A stock is described by the features of media, so that the command line takes and lists it as it
// does a ticket.

#include "MediaLibrary.h"

#include <algorithm>
#include <array>
#include <iostream>

#include "Assignment.h"
#include "Command.h"
#include "Errors.h"
#include "Listing.h"
#include "Outline.h"
#include "Printers.h"
#include "Text.h"
#include "TicketFile.h"
#include "ocore/Faults/TarvoException.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/User/User.h"
#include "platform/System.h"

namespace jobticket {

namespace {

using zent::Stock;
using zent::StockType;

zent::CXString toPath(const std::string& folder) {
    return folder.empty() ? zent::User::getProfileDirectoryPath()
                          : zent::CXString(fromUtf8(folder));
}

zent::MediaPreferences readPreferences(const std::string& folder, std::string& file) {
    const zent::CXString path = toPath(folder);
    try {
        zent::MediaPreferences preferences(path);
        file = toUtf8(preferences.getPath());
        return preferences;
    } catch (const zent::TarvoException& exception) {
        failToRead(exception, "the media library in " + toUtf8(path), "is damaged");
    }
}

[[noreturn]] void failToWrite(const zent::CXString& folder) {
    throw ProgramError(
        ExitStatus::unwritable,
        "can't write the media library in " + toUtf8(folder) + ": " +
            toUtf8(zent::platform::getSystemErrorText(zent::platform::getLastError())));
}

void checkBelongsToStock(const Assignment& assignment) {
    const Feature mediaCol(zent::feature::mediaCol);
    const Feature& feature = assignment.path.back().feature;
    const bool isInTicket = std::ranges::none_of(
        assignment.path, [](const PathStep& step) { return step.feature.isPageLevel(); });
    if (!isInTicket || !feature.isMemberOf(mediaCol) ||
        feature.getNumber() == zent::feature::mediaKey) {
        throw ProgramError(
            ExitStatus::badValue,
            toText(assignment.path.back()) +
                " is no feature of a stock; \"jobticket features media\" lists these");
    }
}

/// The settings of a stock, made as those of a ticket are.
zent::AttrNodeList describe(const std::vector<Assignment>& assignments) {
    Session session;
    Ticket ticket = session.getTicket();
    ticket.removeAll();
    for (const Assignment& assignment : assignments) {
        checkBelongsToStock(assignment);
        setValues(ticket, assignment.path, assignment.values);
    }
    return readDocument(session.exportTicket(), "stock");
}

Stock makeStock(const std::vector<Assignment>& assignments) {
    if (assignments.empty()) {
        return Stock(0, zent::FeatureValue(), StockType::user, zent::StockSource::name,
                     zent::FeatureSettings());
    }
    zent::AttrNodeList description = describe(assignments);
    return *Stock::createFromSettings(zent::FeatureSettings(&description), StockType::user);
}

} // namespace

MediaLibrary::MediaLibrary(const PrinterChoice& printer, const std::string& folder, Lock lock)
    : m_lock(std::move(lock)),
      m_printer(printer.model, printer.pdl, printer.form, zent::CXString(), true),
      m_stocks(m_printer, readPreferences(folder, m_file)) {}

MediaLibrary MediaLibrary::openForChange(const PrinterChoice& printer, const std::string& folder) {
    const zent::CXString path = toPath(folder);
    const auto lock = [&] {
        try {
            return zent::MediaPreferences::lock(path);
        } catch (const zent::TarvoException&) {
            failToWrite(path);
        }
    };
    return {printer, folder, lock()};
}

std::vector<const Stock*> MediaLibrary::getStocks(StockType kind) {
    std::vector<const Stock*> stocks;
    m_stocks.resetStocksByType(kind);
    while (m_stocks.hasMoreStocksByType()) {
        stocks.push_back(m_stocks.getNextStockByType());
    }
    return stocks;
}

const Stock* MediaLibrary::find(const std::string& name) {
    const std::vector<const Stock*> stocks = getStocks(StockType::user);
    const auto found = std::ranges::find_if(
        stocks, [&](const Stock* stock) { return toUtf8(stock->getKey().getText()) == name; });
    return found == stocks.end() ? nullptr : *found;
}

void MediaLibrary::add(const std::string& name, const std::vector<Assignment>& assignments,
                       bool isFavorite) {
    // This raises an error for a name that no stock can have.
    parseValues(Feature(zent::feature::mediaKey), name);
    if (find(name) != nullptr) {
        throw ProgramError(ExitStatus::badValue, "the library has a stock " + inQuotes(name));
    }
    Stock stock = makeStock(assignments);
    stock.setKeyFromText(zent::CXString(fromUtf8(name)));
    stock.setFavorite(isFavorite);
    m_stocks.addStock(stock);
}

const Stock& MediaLibrary::get(const std::string& name) {
    const Stock* const stock = find(name);
    if (stock == nullptr) {
        throw ProgramError(ExitStatus::badValue, "the library has no stock " + inQuotes(name) +
                                                     "; \"jobticket stock list\" lists all");
    }
    return *stock;
}

std::vector<OutlineLine> MediaLibrary::describe(const std::string& name) {
    zent::FeatureSettings level;
    get(name).applyTo(level);
    return makeOutline(*level.getAttrNodeList());
}

void MediaLibrary::remove(const std::string& name) { m_stocks.removeStock(get(name)); }

void MediaLibrary::save() {
    try {
        m_stocks.save(*m_lock);
    } catch (const zent::TarvoException&) {
        failToWrite(m_stocks.getFolder());
    }
}

namespace {

using zent::Stock;
using zent::StockType;

bool hasPrinter(const Options& options) {
    return !options.printer.model.empty() || !options.printer.language.empty();
}

MediaLibrary openLibrary(const Options& options) {
    return {hasPrinter(options) ? choosePrinter(options.printer) : PrinterChoice(), options.folder};
}

std::string nameOf(const Stock& stock) { return toUtf8(stock.getKey().getText()); }

std::vector<OutlineLine> describe(const Stock& stock) {
    std::vector<OutlineLine> outline = makeOutline(*stock.getSettings().getAttrNodeList());
    std::erase_if(outline, [](const OutlineLine& line) {
        // These hold the name, which is listed apart.
        return line.isHeading || line.path == "media" || line.path == "media-key";
    });
    return outline;
}

Row toRow(const Stock& stock) {
    std::string description;
    for (const OutlineLine& line : describe(stock)) {
        description += (description.empty() ? "" : ", ") + joinTexts(line.values);
    }
    return {nameOf(stock), stock.getKind() == StockType::printer ? "printer" : "library",
            stock.isFavorite() ? "favorite" : "", description};
}

Json toJson(const Stock& stock) {
    return Json::object()
        .add("name", nameOf(stock))
        .add("kind", stock.getKind() == StockType::printer ? "printer" : "library")
        .add("favorite", stock.isFavorite())
        .add("features", toJson(describe(stock)));
}

ExitStatus list(const Options& options) {
    MediaLibrary library = openLibrary(options);
    std::vector<const Stock*> stocks = library.getStocks(StockType::user);
    if (hasPrinter(options)) {
        const std::vector<const Stock*> more = library.getStocks(StockType::printer);
        stocks.insert(stocks.end(), more.begin(), more.end());
    }
    std::string text;
    if (options.listsJson) {
        Json all = Json::array();
        for (const Stock* stock : stocks) {
            all.add(toJson(*stock));
        }
        text = Json::object().add("file", library.getFile()).add("stocks", all).toText();
    } else {
        std::vector<Row> rows;
        rows.reserve(stocks.size());
        for (const Stock* stock : stocks) {
            rows.push_back(toRow(*stock));
        }
        text = rows.empty() ? "The media library is empty.\n" : layOut(std::move(rows));
    }
    writeStandardOutput(text);
    return ExitStatus::success;
}

ExitStatus add(const Options& options) {
    std::vector<Assignment> assignments;
    for (const std::string& text : options.edits) {
        for (Assignment& assignment : parseAssignments(text)) {
            std::cerr << (options.isQuiet ? "" : hintAtMisspelling(assignment));
            assignments.push_back(std::move(assignment));
        }
    }
    MediaLibrary library = MediaLibrary::openForChange({}, options.folder);
    library.add(options.stock, assignments, options.isFavorite);
    library.save();
    return ExitStatus::success;
}

ExitStatus remove(const Options& options) {
    MediaLibrary library = MediaLibrary::openForChange({}, options.folder);
    for (const std::string& name : options.stocks) {
        library.remove(name);
    }
    library.save();
    return ExitStatus::success;
}

constexpr Option folderOption = {
    .names = "--folder",
    .operand = Operand::folder,
    .target = in<&Options::folder>,
    .help = "The folder of the library's file; without it, the user's profile folder"};

constexpr std::array listOptions = {modelOption, languageOption, jsonOption, folderOption};
constexpr std::array addOptions = {
    Option{.names = "NAME",
           .operand = Operand::text,
           .target = in<&Options::stock>,
           .help = "What it is called",
           .isRequired = true},
    Option{.names = "FEATURE=VALUE",
           .operand = Operand::assignment,
           .target = in<&Options::edits>,
           .help = "What it is, as in media-color=blue media-size=SIZE_A4; without any it is known "
                   "by its name alone"},
    Option{.names = "--favorite",
           .target = in<&Options::isFavorite>,
           .help = "Offer it in the short lists of dialogs"},
    folderOption, quietOption};
constexpr std::array removeOptions = {Option{.names = "NAME",
                                             .operand = Operand::stock,
                                             .target = in<&Options::stocks>,
                                             .help = "A stock's name or number, as list has it",
                                             .isRequired = true},
                                      folderOption};

} // namespace

const Command stockCommand = {"stock", "The user's media library", {}, nullptr};
const Command stockListCommand = {"stock list", "List the stocks: name, favorite, what it is",
                                  listOptions, list, "jobticket stock list --model 43\n"};
const Command stockAddCommand = {"stock add", "Add a stock", addOptions, add,
                                 "jobticket stock add Letterhead media-size=SIZE_A4 --favorite\n"};
const Command stockRemoveCommand = {"stock remove", "Remove stocks", removeOptions, remove,
                                    "jobticket stock remove Letterhead 3\n"};

} // namespace jobticket
