#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "Errors.h"

namespace jobticket {

/// The options that choose a printer. Those that weren't given are empty.
struct PrinterOptions {
    std::string model;
    std::string language;
    std::string form;
};

/// The values of all options of all commands. Each command reads those that its own options fill
/// in.
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

/// The kind of value that an option or argument takes. Help names it, and the shell's completion
/// offers such values.
enum class Operand {
    none, // a flag
    text,
    file,
    folder,
    model,
    language,
    form,
    feature,
    path,       // a feature, maybe in another one
    assignment, // FEATURE=VALUE
    stock,
    preference,
    preferenceType,
    command,
};

/// The member of the options that gets the value.
using Target = std::variant<bool& (*)(Options&), std::string& (*)(Options&),
                            std::optional<std::string>& (*)(Options&),
                            std::vector<std::string>& (*)(Options&)>;

/// The target that a path of members leads to: in<&Options::from, &PrinterOptions::model>.
template <auto... members>
constexpr auto& in(Options& options) {
    return (options.*....*members);
}

/// An option ("-o,--output"), or an argument that has its meaning by its place ("TICKET"). Those
/// whose target is a list take all arguments that are left.
struct Option {
    const char* names;
    Operand operand = Operand::none;
    Target target;
    const char* help;
    bool isRequired = false;
    const char* excludes = nullptr; // an option that can't be given beside it
    const char* needs = nullptr;    // an option that must be given as well

    bool isArgument() const { return *names != '-'; }
    bool takesSeveral() const {
        return std::holds_alternative<std::vector<std::string>& (*)(Options&)>(target);
    }
};

/// The same option, with another text of help.
constexpr Option withHelp(Option option, const char* help) {
    option.help = help;
    return option;
}

/// One command of the program, or a group of commands, which has no action.
struct Command {
    const char* name; // "check", "stock add"
    const char* help; // one line
    std::span<const Option> options;
    ExitStatus (*run)(const Options& options);
    const char* examples = "";               // a line each
    std::span<const char* const> about = {}; // more paragraphs for its help
    bool isHidden = false;                   // true for commands that only other programs use
};

/// All commands, in the order in which help lists them; a group stands before its own.
std::span<const Command* const> getCommands();
/// Null if there is none of that name.
const Command* findCommand(std::string_view name);
/// The names of the commands that people see in a group, without that of the group before them; an
/// empty text stands for the program itself.
std::vector<std::string> getCommandNames(std::string_view group);

/// "--output" of "-o,--output".
std::string getLongestName(const Option& option);

extern const Command newCommand;
extern const Command showCommand;
extern const Command getCommand;
extern const Command setCommand;
extern const Command unsetCommand;
extern const Command diffCommand;
extern const Command checkCommand;
extern const Command retargetCommand;
extern const Command instructionsCommand;
extern const Command notesCommand;
extern const Command stateCommand;
extern const Command statePackCommand;
extern const Command stateUnpackCommand;
extern const Command stateShowCommand;
extern const Command stateRenewCommand;
extern const Command featuresCommand;
extern const Command modelsCommand;
extern const Command capabilitiesCommand;
extern const Command stockCommand;
extern const Command stockListCommand;
extern const Command stockAddCommand;
extern const Command stockRemoveCommand;
extern const Command preferencesCommand;
extern const Command preferencesListCommand;
extern const Command preferencesGetCommand;
extern const Command preferencesSetCommand;
extern const Command helpCommand;
extern const Command manualCommand;
extern const Command completeCommand;

// Options that several commands have.

constexpr Option ticketArgument = {.names = "TICKET",
                                   .operand = Operand::file,
                                   .target = in<&Options::ticket>,
                                   .help = "Ticket file, or - for standard input",
                                   .isRequired = true};
constexpr Option ticketArguments = {.names = "TICKET",
                                    .operand = Operand::file,
                                    .target = in<&Options::tickets>,
                                    .help = "Ticket files, or - for standard input",
                                    .isRequired = true};
constexpr Option modelOption = {.names = "-m,--model",
                                .operand = Operand::model,
                                .target = in<&Options::printer, &PrinterOptions::model>,
                                .help = "The printer, by number or name; \"jobticket models\" "
                                        "lists all"};
constexpr Option languageOption = {.names = "-p,--pdl",
                                   .operand = Operand::language,
                                   .target = in<&Options::printer, &PrinterOptions::language>,
                                   .help = "The page description language: ps (1), pcl (2) or "
                                           "color-pcl (3); without it, pcl"};
constexpr Option formOption = {.names = "--form",
                               .operand = Operand::form,
                               .target = in<&Options::printer, &PrinterOptions::form>,
                               .help = "The form of printing instructions: xml (1), stream (2), or "
                                       "what the model takes (3), which is the default"};
constexpr Option preferenceSetOption = {.names = "--set",
                                        .operand = Operand::text,
                                        .target = in<&Options::preferenceSet>,
                                        .help = "The set of preferences of that name"};
constexpr Option printerPreferencesOption = {
    .names = "--printer-preferences",
    .target = in<&Options::usesPrinterPreferences>,
    .help = "The set of preferences of the printer's driver, in place of the one that all printers "
            "share",
    .excludes = "--set",
    .needs = "--model"};
constexpr Option outputOption = {.names = "-o,--output",
                                 .operand = Operand::file,
                                 .target = in<&Options::output>,
                                 .help = "File to write; without it, standard output"};
constexpr Option jsonOption = {.names = "--json",
                               .target = in<&Options::listsJson>,
                               .help = "The same as JSON, for other programs"};
constexpr Option tableOption = {
    .names = "--table",
    .target = in<&Options::listsTable>,
    .help = "One line a feature with tabs between the columns, for other programs",
    .excludes = "--json"};
constexpr Option quietOption = {
    .names = "-q,--quiet", .target = in<&Options::isQuiet>, .help = "No notes on standard error"};

/// Reads the arguments and does what they ask for. Raises ProgramError (usage) for those that make
/// no sense.
ExitStatus runCommandLine(const std::vector<std::string>& arguments);

/// The name of an option's value in help: "FILE", "PRINTER", ...
std::string getName(Operand operand);
/// "TICKET", "[PATTERN]", "[FEATURE=VALUE...]": an argument in a line that shows how to use a
/// command.
std::string describePlace(const Option& argument);
/// " (not with --json)", " (only with --fix)", or nothing.
std::string describeRules(const Option& option);

/// What --help tells of the program, in lines of at most 80 characters.
std::string describeProgram();
/// The same of a command, or of a group.
std::string describe(const Command& command);

} // namespace jobticket
