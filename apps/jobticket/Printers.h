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

/// What the options are called, for messages.
struct PrinterOptionNames {
    std::string model = "--model";
    std::string language = "--pdl";
    bool hasDefault = true;
};

/// The printer that is meant, or the user's default one. Raises ProgramError, telling what there
/// is: usage if there is none of both, badValue for one that doesn't exist, or not with that
/// language.
PrinterChoice choosePrinter(const PrinterOptions& options, const PrinterOptionNames& names = {});

/// A session with the set of preferences that is meant; without any option for it, whatever the
/// printer, that is the one that all printers share.
/// Raises as choosePrinter() does.
Session openSession(const Options& options);
/// The same for a command that goes by a printer in any case.
Session openSession(const Options& options, const PrinterChoice& printer);

} // namespace jobticket
