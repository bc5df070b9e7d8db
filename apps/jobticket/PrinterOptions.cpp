#include "PrinterOptions.h"

#include <algorithm>

#include "ExitStatus.h"
#include "Printers.h"
#include "Text.h"

namespace jobticket {

namespace {

[[noreturn]] void fail(const std::string& message) {
    throw ProgramError(ExitStatus::usage, message);
}

Model chooseModel(const std::string& text, const std::string& option) {
    constexpr std::size_t mostListed = 6;
    if (text.empty()) {
        fail("which printer? " + option +
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
    fail("--form: " + inQuotes(text) + " is none of xml (1), stream (2), model (3)");
}

} // namespace

PrinterChoice choosePrinter(const PrinterOptions& options, const PrinterOptionNames& names) {
    const Model model = chooseModel(options.model, names.model);
    return {model.number, chooseLanguage(model, options.language, names.language),
            chooseForm(options.form)};
}

} // namespace jobticket
