#pragma once

#include <memory>
#include <vector>

#include "ocore/Attributes/AttrNodeList.h"
#include "ocore/Stock/StockList.h"
#include "ocore/User/User.h"
#include "platform/LockedFile.h"

namespace zent {

/// The file of a user's media library: the user's stocks, and by their keys the favourites among
/// them and among the stocks of printers.
///
/// The file is "omedpref.omp" in the user's profile directory. Where there is none, its predecessor
/// "omedpr35.omp" is read; it is never written. Failures of the XML layer reach the caller.
///
/// Who changes the file locks it first, and reads it only then, so that two writers at a time don't
/// undo each other's changes. To read it alone needs no lock.
class MediaPreferences {
public:
    /// Reads the file of a folder, if there is one.
    explicit MediaPreferences(const CXString& folder = User::getProfileDirectoryPath());

    /// Waits until nobody else changes the file of a folder. Raises OrdoParseException.
    static std::unique_ptr<platform::LockedFile> lock(const CXString& folder);

    const CXString& getFolder() const { return m_folder; }
    /// The file that was read, or written since; empty if there is none.
    const CXString& getPath() const { return m_path; }
    bool isOldFile() const { return m_isOldFile; }

    /// The user's stocks, with their favourites marked. Without a file the default library.
    std::unique_ptr<StockList> getUserStocks();
    /// Marks the favourites among a printer's stocks. What names none of them is kept for the next
    /// save(), so that the favourites of other printers survive. Called after getUserStocks(),
    /// since the favourites to keep are those of printers alone.
    void applyPrinterFavorites(StockList& printerStocks);
    /// Writes the user's stocks and the favourites, those of the printer included, in the current
    /// form. A failure leaves the file as it was. The lock is that of the same folder.
    void save(const StockList& stocks, platform::LockedFile& lock);

private:
    /// Keeps a favourite that names none of the stocks for the next save().
    struct ForeignFavorite {
        CXString key;
        AVTE type;
    };

    void applyFavorites(const char16_t* attribute, StockList& stocks, StockType kind);
    void markNamed(const AttrNodeList& favorites, StockList& stocks);
    AttrNodeList listOf(const StockList& stocks) const;

    CXString m_folder;
    CXString m_path;
    bool m_isOldFile = false;
    std::unique_ptr<AttrNodeList> m_list; // null if there was no file
    std::vector<ForeignFavorite> m_foreignFavorites;
};

} // namespace zent
