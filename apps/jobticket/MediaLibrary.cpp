#include "MediaLibrary.h"

#include <algorithm>

#include "Assignment.h"
#include "Errors.h"
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
    parseValues(Feature(zent::feature::mediaKey), name); // says what is wrong with a name
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

} // namespace jobticket
