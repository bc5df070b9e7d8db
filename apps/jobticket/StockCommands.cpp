#include <algorithm>
#include <array>
#include <iostream>

#include "Command.h"
#include "Listing.h"
#include "MediaLibrary.h"
#include "Outline.h"
#include "Printers.h"
#include "Text.h"
#include "TicketFile.h"

namespace jobticket {

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
        return line.isHeading || line.path == "media" || line.path == "media-key"; // the name
    });
    return outline;
}

std::vector<std::string> toRow(const Stock& stock) {
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
        std::vector<std::vector<std::string>> rows;
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
