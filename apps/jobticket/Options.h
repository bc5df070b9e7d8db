#pragma once

#include <optional>
#include <string>
#include <vector>

namespace jobticket {

/// What a command line says of a printer. Empty texts weren't given.
struct PrinterOptions {
    std::string model;
    std::string language;
    std::string form;
};

/// All that a command line can say. Each command reads what its own options fill in.
struct Options {
    std::string ticket; // or the state blob
    std::vector<std::string> tickets;
    std::string otherTicket;
    std::vector<std::string> edits; // features or assignments
    std::optional<std::string> output;
    bool writesInPlace = false;

    PrinterOptions printer;
    PrinterOptions from;
    PrinterOptions to;

    std::string preferenceSet;
    bool usesPrinterPreferences = false;
    std::string preference;
    std::string preferenceValue;
    std::string preferenceType;

    std::string document;
    bool keepsNames = false;
    bool repairs = false;
    bool checksAllPrinters = false;
    bool showsDialog = false;
    bool removesAll = false;

    std::string pattern;
    bool listsRaw = false;
    bool listsJson = false;
    bool listsTable = false;
    bool isQuiet = false;

    std::string folder;
    std::string stock;
    std::vector<std::string> stocks;
    bool isFavorite = false;

    std::vector<std::string> words; // of a command, or of a line that the shell completes
};

} // namespace jobticket
