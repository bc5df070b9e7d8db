#include <algorithm>

#include <CLI/CLI.hpp>

#include "Commands.h"
#include "Listing.h"
#include "MediaLibrary.h"
#include "Outline.h"
#include "PrinterOptions.h"
#include "Text.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

using zent::Stock;
using zent::StockType;

struct StockOptions {
    PrinterOptions printer;
    std::string folder;
    std::string name;               // of the stock to add
    std::vector<std::string> edits; // that say what it is
    std::vector<std::string> names; // of stocks to remove
    bool isFavorite = false;
    bool json = false;
};

bool hasPrinter(const StockOptions& options) {
    return !options.printer.model.empty() || !options.printer.language.empty();
}

/// Without a printer, which only list takes, it doesn't matter which one the library is beside.
MediaLibrary openLibrary(const StockOptions& options) {
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

ExitStatus list(const StockOptions& options) {
    MediaLibrary library = openLibrary(options);
    std::vector<const Stock*> stocks = library.getStocks(StockType::user);
    if (hasPrinter(options)) {
        const std::vector<const Stock*> more = library.getStocks(StockType::printer);
        stocks.insert(stocks.end(), more.begin(), more.end());
    }
    std::string text;
    if (options.json) {
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
    writeFile(std::string(standardStream), text);
    return ExitStatus::success;
}

ExitStatus add(const StockOptions& options) {
    std::vector<Assignment> assignments;
    for (const std::string& text : options.edits) {
        assignments.push_back(parseAssignment(text));
        hintAtMisspelling(assignments.back());
    }
    MediaLibrary library = openLibrary(options);
    library.add(options.name, assignments, options.isFavorite);
    library.save();
    return ExitStatus::success;
}

ExitStatus remove(const StockOptions& options) {
    MediaLibrary library = openLibrary(options);
    for (const std::string& name : options.names) {
        library.remove(name);
    }
    library.save();
    return ExitStatus::success;
}

} // namespace

void addStockCommand(CLI::App& program, Action& action) {
    CLI::App* command = program.add_subcommand("stock", "The user's media library");
    command->require_subcommand(1);
    const auto options = std::make_shared<StockOptions>(); // of whichever command is given
    const auto addCommand = [&](const char* name, const char* help,
                                ExitStatus (*run)(const StockOptions&)) {
        CLI::App* added = command->add_subcommand(name, help);
        added->add_option(
            "--folder", options->folder,
            "The folder of the library's file; without it, the user's profile folder");
        added->callback(
            [options, run, &action] { action = [options, run] { return run(*options); }; });
        return added;
    };
    CLI::App* lister = addCommand("list", "List the stocks: name, favorite, what it is", list);
    addModelOptions(*lister, options->printer);
    lister->add_flag("--json", options->json, "The same as JSON, for other programs");
    CLI::App* adder = addCommand("add", "Add a stock", add);
    adder->add_option("NAME", options->name, "What it is called")->required();
    adder->add_option("FEATURE=VALUE", options->edits,
                      "What it is, as in media-color=blue media-size=SIZE_A4; without any it is "
                      "known by its name alone");
    adder->add_flag("--favorite", options->isFavorite, "Offer it in the short lists of dialogs");
    CLI::App* remover = addCommand("remove", "Remove stocks", remove);
    remover->add_option("NAME", options->names, "A stock's name or number, as list has it")
        ->required();
}

} // namespace jobticket
