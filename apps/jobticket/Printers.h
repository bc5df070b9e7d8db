#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Command.h"
#include "Session.h"

namespace jobticket {

/// A page description language.
struct Language {
    std::uint32_t number;  // as the calls take it
    std::string_view name; // on the command line
    std::string_view displayName;
};

/// All languages, by number.
const std::vector<Language>& getLanguages();

/// A way of driving a model: the name of its driver for one language.
struct Driver {
    Language language;
    std::string name;
};

/// A printer model as the tables have it.
struct Model {
    std::uint32_t number;
    std::string name;
    std::uint32_t family;
    bool takesXml; // its instructions are the XML document, else the stream of comment lines
    std::vector<Driver> drivers; // by language
};

/// All models, by number.
std::vector<Model> getModels();

/// The models of that number or name; without one, those with the text in their name or in the name
/// of a driver.
std::vector<Model> findModels(const std::string& text);

/// Whether a model has a language, by its name or number.
bool hasLanguage(const Model& model, const std::string& language);

/// "pcl, ps": the languages of a model.
std::string listLanguages(const Model& model);

/// The names of the options that choose a printer, for messages.
struct PrinterOptionNames {
    std::string model = "--model";
    std::string language = "--pdl";
    bool hasDefault = true;
};

/// The printer that the options choose, or the user's default one. Raises ProgramError, with the
/// printers or languages that there are: usage if neither is given, badValue for a printer that
/// doesn't exist, or doesn't have that language.
PrinterChoice choosePrinter(const PrinterOptions& options, const PrinterOptionNames& names = {});

/// A session with the set of preferences that the options choose: without an option for it, that is
/// the set that all printers share, whatever the printer. Raises as choosePrinter() does.
Session openSession(const Options& options);
/// The same for a command that has chosen a printer.
Session openSession(const Options& options, const PrinterChoice& printer);

} // namespace jobticket
