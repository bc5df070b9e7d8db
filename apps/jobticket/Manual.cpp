#include <array>

#include "Command.h"
#include "Help.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

/// Text for man(7): hyphens and backslashes stand for themselves.
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

std::string describeNames(const Option& option) {
    std::string text;
    for (std::string_view rest = option.names; !rest.empty();) {
        const std::string_view name = rest.substr(0, rest.find(','));
        text += (text.empty() ? "" : ", ") + bold(name);
        rest.remove_prefix(std::min(name.size() + 1, rest.size()));
    }
    return text + (hasValue(option) ? ' ' + italic(getName(option.operand)) : "");
}

/// The options of a command, set in below it. Its arguments need no more than their names.
std::string writeOptions(const Command& command) {
    std::string text;
    for (const Option& option : command.options) {
        if (!option.isArgument()) {
            text += ".TP\n" + describeNames(option) + '\n' +
                    escaped(option.help + describeRules(option)) + ".\n";
        }
    }
    return text.empty() ? "" : ".RS\n" + text + ".RE\n";
}

/// What stands in place of a line of the page: ".\" @synopsis", ".\" @options COMMAND".
std::string replaceLine(const std::string& line) {
    const std::string synopsis = ".\\\" @synopsis\n";
    const std::string options = ".\\\" @options ";
    if (line == synopsis) {
        return writeSynopsis();
    }
    if (!line.starts_with(options)) {
        return line;
    }
    const std::string name = line.substr(options.size(), line.size() - options.size() - 1);
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

constexpr std::array options = {Option{.names = "PAGE",
                                       .operand = Operand::file,
                                       .target = in<&Options::ticket>,
                                       .help = "The manual page, without what the program knows",
                                       .isRequired = true}};

} // namespace

const Command manualCommand = {
    .name = "manual",
    .help = "Write the manual page, with the use and the options of each command put in",
    .options = options,
    .run = writeManual,
    .isHidden = true};

} // namespace jobticket
