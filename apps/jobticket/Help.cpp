#include "Command.h"

#include <array>
#include <iterator>

#include "Text.h"
#include "TicketFile.h"
#include "zent_version.h"

namespace jobticket {

namespace {

constexpr const char* aboutStatus = R"(Exit status:
  0  success
  1  diff: the tickets differ; get: the feature isn't set; check, retarget: the
     printer can't do all of the ticket
  2  wrong use of the command
  3  a file can't be read
  4  what was read is no valid ticket, state blob or media library
  5  a feature, printer, stock or value that isn't known
  6  the result can't be written
  7  any other failure of the library
)";

constexpr std::size_t lineWidth = 80;
constexpr std::size_t helpColumn = 26; // where the texts of a listing begin

/// Adds words, in lines of their own from a column on.
void addWrapped(std::string& text, std::string_view words, std::size_t column) {
    std::size_t width = text.size() - (text.rfind('\n') + 1);
    while (!words.empty()) {
        const std::string_view word = words.substr(0, words.find(' '));
        if (width + word.size() > lineWidth) {
            text.erase(text.find_last_not_of(' ') + 1);
            text += '\n' + std::string(column, ' ');
            width = column;
        }
        text.append(word).append(" ");
        width += word.size() + 1;
        words.remove_prefix(std::min(word.size() + 1, words.size()));
    }
    text.erase(text.find_last_not_of(' ') + 1);
    text += '\n';
}

/// Adds a row of a listing; a name that is too long stands in a line of its own.
void addRow(std::string& text, const std::string& name, std::string_view help) {
    std::string row = "  " + name;
    if (row.size() + 2 > helpColumn) {
        row += '\n' + std::string(helpColumn, ' ');
    } else {
        row.resize(helpColumn, ' ');
    }
    addWrapped(row, help, helpColumn);
    text += row;
}

/// "-o, --output FILE"; names without a short one stand below the long ones of the others.
std::string describeNames(const Option& option) {
    std::string names = option.names;
    if (const std::size_t comma = names.find(','); comma != std::string::npos) {
        names.insert(comma + 1, " ");
    } else if (!option.isArgument()) {
        names.insert(0, 4, ' ');
    }
    const bool hasValue = !option.isArgument() && option.operand != Operand::none;
    return names + (hasValue ? ' ' + getName(option.operand) : "");
}

void addOptions(std::string& text, const Command& command) {
    std::string arguments;
    std::string options;
    for (const Option& option : command.options) {
        addRow(option.isArgument() ? arguments : options, describeNames(option),
               option.help + describeRules(option));
    }
    addRow(options, "-h, --help", "Tell this");
    text += (arguments.empty() ? "" : "\nArguments:\n" + arguments) + "\nOptions:\n" + options;
}

void addCommands(std::string& text, const std::string& group) {
    const std::string before = group.empty() ? "" : group + ' ';
    text += "\nCommands:\n";
    for (const std::string& name : getCommandNames(group)) {
        addRow(text, name, findCommand(before + name)->help);
    }
}

void addExamples(std::string& text, std::string_view examples) {
    text += "\nExamples:\n";
    while (!examples.empty()) {
        const std::size_t end = examples.find('\n') + 1;
        text.append("  ").append(examples.substr(0, end));
        examples.remove_prefix(end);
    }
}

ExitStatus help(const Options& options) {
    std::string name;
    for (const std::string& word : options.words) {
        name += (name.empty() ? "" : " ") + word;
    }
    const Command* const command = findCommand(name);
    if (command == nullptr && !name.empty()) {
        throw ProgramError(ExitStatus::usage, "there is no command " + inQuotes(name) +
                                                  "; \"jobticket help\" lists all");
    }
    writeStandardOutput(command == nullptr ? describeProgram() : describe(*command));
    return ExitStatus::success;
}

constexpr std::array helpOptions = {
    Option{.names = "COMMAND",
           .operand = Operand::command,
           .target = in<&Options::words>,
           .help = "The command; without it, the program as a whole"}};

} // namespace

const Command helpCommand = {"help", "Tell about a command", helpOptions, help,
                             "jobticket help stock add\n"};

std::string getName(Operand operand) {
    switch (operand) {
    case Operand::file:
        return "FILE";
    case Operand::folder:
        return "FOLDER";
    case Operand::model:
        return "PRINTER";
    case Operand::language:
        return "LANGUAGE";
    case Operand::form:
        return "FORM";
    case Operand::preferenceType:
        return "TYPE";
    default:
        return "NAME";
    }
}

std::string describeRules(const Option& option) {
    std::string text;
    if (option.excludes != nullptr) {
        text.append(" (not with ").append(option.excludes).append(")");
    }
    if (option.needs != nullptr) {
        text.append(" (only with ").append(option.needs).append(")");
    }
    return text;
}

std::string describePlace(const Option& argument) {
    const std::string name = argument.names + std::string(argument.takesSeveral() ? "..." : "");
    return argument.isRequired ? name : '[' + name + ']';
}

std::string describe(const Command& command) {
    std::string text = "Usage: jobticket " + std::string(command.name) +
                       (command.run == nullptr ? " COMMAND" : " [OPTIONS]");
    for (const Option& option : command.options) {
        text += option.isArgument() ? ' ' + describePlace(option) : "";
    }
    text += "\n\n";
    addWrapped(text, command.help, 0);
    if (command.run == nullptr) {
        addCommands(text, command.name);
    }
    addOptions(text, command);
    if (*command.examples != '\0') {
        addExamples(text, command.examples);
    }
    for (const char* const part : command.about) {
        text.append("\n").append(part);
    }
    return text;
}

std::string describeProgram() {
    std::string text = "Usage: jobticket COMMAND [OPTIONS] ...\n\n"
                       "Makes, edits, compares and checks job tickets for production printers.\n";
    addCommands(text, "");
    text += "\nOptions:\n";
    addRow(text, "-h, --help", "Tell this; after a command, tell about the command");
    addRow(text, "    --version", "Tell the version");
    return text + '\n' + aboutStatus;
}

namespace {

/// Escapes a text for man(7), so that hyphens and backslashes stand for themselves.
std::string escaped(std::string_view text) {
    std::string result;
    for (const char c : text) {
        result += c == '-' ? "\\-" : c == '\\' ? "\\e" : std::string(1, c);
    }
    return result;
}

std::string bold(std::string_view text) { return "\\fB" + escaped(text) + "\\fR"; }
std::string italic(std::string_view text) { return "\\fI" + escaped(text) + "\\fR"; }

bool hasValue(const Option& option) { return option.operand != Operand::none; }

std::string describeUse(const Option& option) {
    if (option.isArgument()) {
        return italic(describePlace(option));
    }
    const std::string_view names = option.names;
    return '[' + bold(names.substr(0, names.find(','))) +
           (hasValue(option) ? ' ' + italic(getName(option.operand)) : "") + ']';
}

/// How each command is used, a line each.
std::string writeSynopsis() {
    std::string text;
    for (const Command* command : getCommands()) {
        if (command->run == nullptr || command->isHidden) {
            continue;
        }
        text += text.empty() ? "" : ".br\n";
        text += bold("jobticket " + std::string(command->name));
        for (const Option& option : command->options) {
            text += ' ' + describeUse(option);
        }
        text += '\n';
    }
    return text;
}

std::string writeNames(const Option& option) {
    std::string text;
    for (std::string_view rest = option.names; !rest.empty();) {
        const std::string_view name = rest.substr(0, rest.find(','));
        text += (text.empty() ? "" : ", ") + bold(name);
        rest.remove_prefix(std::min(name.size() + 1, rest.size()));
    }
    return text + (hasValue(option) ? ' ' + italic(getName(option.operand)) : "");
}

/// The options of a command, indented below it. Its arguments are explained by their names.
std::string writeOptions(const Command& command) {
    std::string text;
    for (const Option& option : command.options) {
        if (!option.isArgument()) {
            text += ".TP\n" + writeNames(option) + '\n' +
                    escaped(option.help + describeRules(option)) + ".\n";
        }
    }
    return text.empty() ? "" : ".RS\n" + text + ".RE\n";
}

/// Gives what replaces a line of the page if it is one of ".\" @title", ".\" @synopsis" and ".\"
/// @options COMMAND"; else the line.
std::string replaceLine(const std::string& line) {
    const std::string synopsis = ".\\\" @synopsis\n";
    const std::string optionsOf = ".\\\" @options ";
    if (line == ".\\\" @title\n") {
        return ".TH JOBTICKET 1 \"\" \"jobticket " ZENT_VERSION "\" \"Job tickets\"\n";
    }
    if (line == synopsis) {
        return writeSynopsis();
    }
    if (!line.starts_with(optionsOf)) {
        return line;
    }
    const std::string name = line.substr(optionsOf.size(), line.size() - optionsOf.size() - 1);
    const Command* const command = findCommand(name);
    if (command == nullptr) {
        throw ProgramError(ExitStatus::badValue, "there is no command \"" + name + '"');
    }
    return writeOptions(*command);
}

ExitStatus writeManual(const Options& options) {
    const std::string page = readFile(options.ticket);
    std::string text;
    for (std::size_t start = 0; start < page.size();) {
        const std::size_t end = std::min(page.find('\n', start), page.size() - 1) + 1;
        text += replaceLine(page.substr(start, end - start));
        start = end;
    }
    writeStandardOutput(text);
    return ExitStatus::success;
}

constexpr std::array manualOptions = {
    Option{.names = "PAGE",
           .operand = Operand::file,
           .target = in<&Options::ticket>,
           .help = "The manual page, without what the program knows",
           .isRequired = true}};

} // namespace

const Command manualCommand = {
    .name = "manual",
    .help = "Write the manual page, with the use and the options of each command put in",
    .options = manualOptions,
    .run = writeManual,
    .isHidden = true};

} // namespace jobticket
