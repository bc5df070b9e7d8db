#include <array>

#include "CommonOptions.h"
#include "Json.h"
#include "Listing.h"
#include "Printers.h"
#include "Text.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

using Row = std::vector<std::string>;

std::string formOf(const Model& model) { return model.takesXml ? "xml" : "stream"; }

std::string listModels(const std::vector<Model>& models) {
    std::vector<Row> rows = {{"No.", "Name", "Languages", "Form", "Family"}};
    for (const Model& model : models) {
        rows.push_back({std::to_string(model.number), model.name, listLanguages(model),
                        formOf(model), std::to_string(model.family)});
    }
    return layOut(rows);
}

std::string describe(const Model& model) {
    std::vector<Row> rows = {
        {"Model", std::to_string(model.number)},
        {"Name", model.name},
        {"Family", std::to_string(model.family)},
        {"Form", formOf(model) + (model.takesXml ? " (instructions are an XML document)"
                                                 : " (instructions are comment lines)")}};
    std::string text = layOut(rows) + "Drivers\n";
    rows.clear();
    for (const Driver& driver : model.drivers) {
        rows.push_back({"  " + std::string(driver.language.name), driver.name});
    }
    return text + layOut(rows);
}

/// One line a model, tabs between the columns: number, name, family, form, and the drivers by
/// language.
std::string makeTable(const std::vector<Model>& models) {
    std::string text;
    for (const Model& model : models) {
        text += std::to_string(model.number) + '\t' + model.name + '\t' +
                std::to_string(model.family) + '\t' + formOf(model);
        for (const Driver& driver : model.drivers) {
            text.append("\t").append(driver.language.name).append("=").append(driver.name);
        }
        text += '\n';
    }
    return text;
}

Json toJson(const Model& model) {
    Json drivers = Json::array();
    for (const Driver& driver : model.drivers) {
        drivers.add(Json::object().add("pdl", driver.language.name).add("name", driver.name));
    }
    return Json::object()
        .add("model", model.number)
        .add("name", model.name)
        .add("family", model.family)
        .add("form", formOf(model))
        .add("drivers", drivers);
}

std::string makeJson(const std::vector<Model>& models) {
    Json list = Json::array();
    for (const Model& model : models) {
        list.add(toJson(model));
    }
    return Json::object().add("models", list).toText();
}

ExitStatus list(const Options& options) {
    const std::vector<Model> models = findModels(options.pattern);
    if (models.empty()) {
        throw ProgramError(ExitStatus::badValue, "there is no printer " +
                                                     inQuotes(options.pattern) +
                                                     R"(; "jobticket models" lists all)");
    }
    std::string text;
    if (options.listsJson) {
        text = makeJson(models);
    } else if (options.listsTable) {
        text = makeTable(models);
    } else {
        text = models.size() == 1 ? describe(models.front()) : listModels(models);
    }
    writeStandardOutput(text);
    return ExitStatus::success;
}

constexpr std::array options = {
    Option{.names = "PATTERN",
           .operand = Operand::model,
           .target = in<&Options::pattern>,
           .help = "A printer's number or name, to see all about it; or a part of the names of "
                   "those to list"},
    Option{.names = "--table",
           .target = in<&Options::listsTable>,
           .help = "One line a printer with tabs between the columns, for other programs",
           .excludes = "--json"},
    jsonOption};

} // namespace

const Command modelsCommand = {"models", "List the printers that the library knows", options, list,
                               "jobticket models chromaset\n"
                               "jobticket models 43\n"};

} // namespace jobticket
