#include "Printers.h"

#include <algorithm>

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

} // namespace jobticket
