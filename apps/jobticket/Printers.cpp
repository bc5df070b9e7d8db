#include "Printers.h"

#include <algorithm>

#include "Errors.h"
#include "Platform.h"
#include "Preferences.h"
#include "Text.h"
#include "ocore/Models/PrinterModel.h"

namespace jobticket {

namespace {

std::vector<Driver> driversOf(std::uint32_t model) {
    std::vector<Driver> drivers;
    for (const Language& language : getLanguages()) {
        for (const zent::DriverInfo& row : zent::getDriverTable()) {
            if (row.model == model && row.pdl == language.number) {
                drivers.push_back({language, toUtf8(row.driverName)});
            }
        }
    }
    return drivers;
}

Model makeModel(const zent::ModelInfo& row) {
    const zent::PrinterModel model(row.model, zent::pageLanguage::monochromePcl);
    return {row.model, toPrintable(model.getDisplayName()), row.family, model.takesOrdo(),
            driversOf(row.model)};
}

bool isNamed(const Model& model, const std::string& text) {
    return std::to_string(model.number) == text || model.name == text;
}

bool isNamedPartly(const Model& model, const std::string& text) {
    return containsIgnoringCase(model.name, text) ||
           std::ranges::any_of(model.drivers, [&](const Driver& driver) {
               return containsIgnoringCase(driver.name, text);
           });
}

} // namespace

const std::vector<Language>& getLanguages() {
    static const std::vector<Language> languages = {
        {zent::pageLanguage::postScript, "ps", "PostScript"},
        {zent::pageLanguage::monochromePcl, "pcl", "monochrome PCL"},
        {zent::pageLanguage::colorPcl, "color-pcl", "colour PCL"},
    };
    return languages;
}

std::vector<Model> getModels() {
    std::vector<Model> models;
    for (const zent::ModelInfo& row : zent::getModelTable()) {
        models.push_back(makeModel(row));
    }
    return models;
}

std::vector<Model> findModels(const std::string& text) {
    std::vector<Model> models = getModels();
    const auto named =
        std::ranges::find_if(models, [&](const Model& model) { return isNamed(model, text); });
    if (named != models.end()) {
        return {*named};
    }
    std::erase_if(models, [&](const Model& model) { return !isNamedPartly(model, text); });
    return models;
}

bool hasLanguage(const Model& model, const std::string& language) {
    return std::ranges::any_of(model.drivers, [&](const Driver& driver) {
        return driver.language.name == language ||
               std::to_string(driver.language.number) == language;
    });
}

std::string listLanguages(const Model& model) {
    std::string text;
    for (const Driver& driver : model.drivers) {
        text.append(text.empty() ? "" : ", ").append(driver.language.name);
    }
    return text;
}

namespace {

[[noreturn]] void fail(const std::string& message) {
    throw ProgramError(ExitStatus::badValue, message);
}

Model chooseModel(const std::string& text, const std::string& option) {
    constexpr std::size_t mostListed = 6;
    if (text.empty()) {
        throw ProgramError(ExitStatus::usage,
                           "which printer? " + option +
                               " takes its number or name; \"jobticket models\" lists all");
    }
    const std::vector<Model> models = findModels(text);
    if (models.empty()) {
        fail(option + ": there is no printer " + inQuotes(text) +
             "; \"jobticket models\" lists all");
    }
    if (models.size() > 1) {
        std::string names;
        for (std::size_t index = 0; index < std::min(models.size(), mostListed); ++index) {
            names += (names.empty() ? "" : ", ") + models[index].name;
        }
        fail(option + ": " + inQuotes(text) + " may be " + names +
             (models.size() > mostListed ? " and others" : ""));
    }
    return models.front();
}

std::uint32_t chooseLanguage(const Model& model, const std::string& text,
                             const std::string& option) {
    if (text.empty()) {
        return PrinterChoice().pdl; // every model has it
    }
    const auto means = [&text](const Language& language) {
        return language.name == text || std::to_string(language.number) == text;
    };
    const auto driver = std::ranges::find_if(
        model.drivers, [&](const Driver& candidate) { return means(candidate.language); });
    if (driver != model.drivers.end()) {
        return driver->language.number;
    }
    if (std::ranges::any_of(getLanguages(), means)) {
        fail(option + ": " + model.name + " has no " + text + "; it has " + listLanguages(model));
    }
    fail(option + ": " + inQuotes(text) + " is none of ps (1), pcl (2), color-pcl (3)");
}

std::uint32_t chooseForm(const std::string& text) {
    if (text.empty() || text == "model" || text == "3") {
        return ZENT_INSTRUCTIONS_BY_MODEL;
    }
    if (text == "xml" || text == "1") {
        return ZENT_INSTRUCTIONS_XML;
    }
    if (text == "stream" || text == "2") {
        return ZENT_INSTRUCTIONS_STREAM;
    }
    throw ProgramError(ExitStatus::usage,
                       "--form: " + inQuotes(text) + " is none of xml (1), stream (2), model (3)");
}

/// The printer that is used if none is given: it is named in the environment, or else in the
/// preferences that all printers share. The language may follow after a colon: "43:ps".
std::string getDefaultPrinter() {
    constexpr const char* name = "JOBTICKET_PRINTER";
    if (auto variable = platform::getVariable(name)) {
        return *variable;
    }
    const Session session;
    return Preferences(session).find(name, PreferenceType::text).value_or("");
}

/// The same options, with the default printer where none is named.
PrinterOptions withDefault(PrinterOptions options) {
    if (options.model.empty()) {
        const std::string text = getDefaultPrinter();
        const std::size_t colon = std::min(text.find(':'), text.size());
        options.model = text.substr(0, colon);
        if (options.language.empty() && colon < text.size()) {
            options.language = text.substr(colon + 1);
        }
    }
    return options;
}

} // namespace

PrinterChoice choosePrinter(const PrinterOptions& options, const PrinterOptionNames& names) {
    const PrinterOptions chosen = names.hasDefault ? withDefault(options) : options;
    const Model model = chooseModel(chosen.model, names.model);
    return {model.number, chooseLanguage(model, chosen.language, names.language),
            chooseForm(chosen.form)};
}

Session openSession(const Options& options) {
    const bool hasPrinter = !options.printer.model.empty() || !options.printer.language.empty();
    return openSession(options, hasPrinter ? choosePrinter(options.printer) : PrinterChoice());
}

Session openSession(const Options& options, const PrinterChoice& printer) {
    return Session(printer, {options.preferenceSet, !options.usesPrinterPreferences});
}

} // namespace jobticket
