#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Assignment.h"
#include "Outline.h"
#include "Session.h"
#include "ocore/Printer/NonDriverBasedPrinter.h"
#include "ocore/Stock/StockInformation.h"
#include "platform/LockedFile.h"

namespace jobticket {

/// The user's media library, and the stocks of a printer beside it. Stocks without a name are
/// called by numbers here.
class MediaLibrary {
public:
    /// Reads the library of a folder; without one, of the user's profile folder. Raises
    /// ProgramError (invalidTicket) for a file that is none.
    MediaLibrary(const PrinterChoice& printer, const std::string& folder)
        : MediaLibrary(printer, folder, nullptr) {}
    /// Reads the library to change it. As long as the object lives, nobody else can. Raises
    /// ProgramError (unwritable) as well.
    static MediaLibrary openForChange(const PrinterChoice& printer, const std::string& folder);

    /// The path of the file; empty if there is none yet.
    const std::string& getFile() const { return m_file; }
    std::vector<const zent::Stock*> getStocks(zent::StockType kind);
    /// The lines of a ticket that asks for the user's stock of that name. Raises ProgramError
    /// (badValue) if there is no such stock.
    std::vector<OutlineLine> describe(const std::string& name);

    /// Adds a stock of the user's; without assignments it is known by its name alone. Raises
    /// ProgramError (badValue) for a name that another one of these has, and for features that
    /// don't belong to a stock.
    void add(const std::string& name, const std::vector<Assignment>& assignments, bool isFavorite);
    /// Raises ProgramError (badValue) if no stock of the user's has the name.
    void remove(const std::string& name);
    /// Writes the file, of a library that was opened for change. Raises ProgramError (unwritable).
    void save();

private:
    using Lock = std::unique_ptr<zent::platform::LockedFile>;

    MediaLibrary(const PrinterChoice& printer, const std::string& folder, Lock lock);
    const zent::Stock* find(const std::string& name);
    const zent::Stock& get(const std::string& name);

    Lock m_lock;
    zent::NonDriverBasedPrinter m_printer;
    std::string m_file;
    zent::StockInformation m_stocks;
};

} // namespace jobticket
