// The list of commands, and how a command line is read by it. This is the only source that knows
// the parser of arguments, which takes long to compile.

#include <algorithm>
#include <array>
#include <span>

#include <CLI/CLI.hpp>

#include "Command.h"
#include "Text.h"
#include "TicketFile.h"
#include "zent_version.h"

namespace jobticket {

namespace {

std::string helpFor(std::string_view command) {
    return "\"jobticket " + std::string(command) + (command.empty() ? "" : " ") + "--help\"";
}

/// Finds the command that the arguments begin with: a group if the name of its command is missing,
/// and null if there is no command at all. The parser itself can only say that a command is
/// missing.
const Command* chooseCommand(std::span<const std::string> arguments) {
    const Command* chosen = nullptr;
    std::string before;
    for (const std::string& argument : arguments) {
        if (argument.starts_with('-') || (chosen != nullptr && chosen->run != nullptr)) {
            break;
        }
        const Command* const next = findCommand(before + argument);
        if (next == nullptr) {
            const std::string nearest =
                findNearest(argument, getCommandNames(chosen == nullptr ? "" : chosen->name));
            throw ProgramError(
                ExitStatus::usage,
                "there is no command " + inQuotes(before + argument) + "; " +
                    (nearest.empty() ? helpFor(chosen == nullptr ? "" : chosen->name) + " lists all"
                                     : "did you mean " + inQuotes(before + nearest) + "?"));
        }
        chosen = next;
        before = std::string(chosen->name) + ' ';
    }
    return chosen;
}

void addOption(CLI::App& parser, const Option& row, Options& options) {
    const auto add = [&](auto* target) {
        auto& value = target(options);
        if constexpr (std::is_same_v<decltype(value), bool&>) {
            return parser.add_flag(row.names, value);
        } else {
            return parser.add_option(row.names, value);
        }
    };
    std::visit(add, row.target)->required(row.isRequired);
}

/// Reads the options of a command.
class OptionParser {
public:
    OptionParser(const Command& command, Options& options) : m_command(command) {
        m_parser.allow_extras(); // they are reported below
        // "/a" is a file on every system.
        m_parser.allow_windows_style_options(false);
        for (const Option& row : command.options) {
            addOption(m_parser, row, options);
        }
        for (const Option& row : command.options) {
            CLI::Option* const option = m_parser.get_option(getLongestName(row));
            if (row.excludes != nullptr) {
                option->excludes(m_parser.get_option(row.excludes));
            }
            if (row.needs != nullptr) {
                option->needs(m_parser.get_option(row.needs));
            }
        }
    }

    /// Takes what stands after the command's name. False if only help is wanted.
    bool parse(std::vector<std::string> arguments) {
        try {
            std::reverse(arguments.begin(), arguments.end()); // the order in which they are taken
            m_parser.parse(std::move(arguments));
        } catch (const CLI::CallForHelp&) {
            return false;
        } catch (const CLI::ParseError& error) {
            checkAllIsKnown(); // a misspelt option is reported as such, not as missing
            fail(describe(error));
        }
        checkAllIsKnown();
        return true;
    }

private:
    [[noreturn]] void fail(const std::string& reason) const {
        throw ProgramError(ExitStatus::usage,
                           reason + "; " + helpFor(m_command.name) + " tells more");
    }

    void checkAllIsKnown() const {
        std::vector<std::string> extras = m_parser.remaining();
        std::erase(extras, "--"); // the parser obeys it, but leaves it there
        if (extras.empty()) {
            return;
        }
        std::vector<std::string> names = {"--help"};
        for (const Option& row : m_command.options) {
            names.push_back(getLongestName(row));
        }
        const std::string& extra = extras.front();
        const std::string nearest = extra.starts_with("--") ? findNearest(extra, names) : "";
        fail(inQuotes(extra) + " isn't expected" +
             (nearest.empty() ? "" : "; did you mean " + inQuotes(nearest) + "?"));
    }

    static std::string describe(const CLI::ParseError& error) {
        std::string message = error.what();
        if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) == nullptr) {
            return message; // "TICKET is required", "--json excludes --dialog"
        }
        return message.substr(0, message.find(':')) +
               (message.ends_with("missing") ? " takes a value" : " can be given only once");
    }

    CLI::App m_parser;
    const Command& m_command;
};

ExitStatus runProgram(std::span<const std::string> arguments) {
    const std::string option = arguments.empty() ? "" : arguments.front();
    if (option == "--help" || option == "-h") {
        writeStandardOutput(describeProgram());
    } else if (option == "--version") {
        writeStandardOutput("jobticket " ZENT_VERSION "\n");
    } else {
        throw ProgramError(
            ExitStatus::usage,
            (option.empty() ? "which command? " : inQuotes(option) + " isn't expected; ") +
                helpFor("") + " lists all");
    }
    return ExitStatus::success;
}

} // namespace

ExitStatus runCommandLine(const std::vector<std::string>& arguments) {
    const Command* const command = chooseCommand(arguments);
    if (command == nullptr) {
        return runProgram(arguments);
    }
    const auto words = std::ranges::count(std::string_view(command->name), ' ') + 1;
    Options options;
    if (!OptionParser(*command, options).parse({arguments.begin() + words, arguments.end()})) {
        writeStandardOutput(describe(*command));
        return ExitStatus::success;
    }
    if (command->run == nullptr) {
        throw ProgramError(ExitStatus::usage, std::string("which command of ") + command->name +
                                                  "? " + helpFor(command->name) + " lists all");
    }
    return command->run(options);
}

namespace {

constexpr std::array commands = {
    &newCommand,
    &showCommand,
    &getCommand,
    &setCommand,
    &unsetCommand,
    &diffCommand,
    &checkCommand,
    &retargetCommand,
    &instructionsCommand,
    &notesCommand,
    &stateCommand,
    &statePackCommand,
    &stateUnpackCommand,
    &stateShowCommand,
    &stateRenewCommand,
    &featuresCommand,
    &modelsCommand,
    &capabilitiesCommand,
    &stockCommand,
    &stockListCommand,
    &stockAddCommand,
    &stockRemoveCommand,
    &preferencesCommand,
    &preferencesListCommand,
    &preferencesGetCommand,
    &preferencesSetCommand,
    &helpCommand,
    &manualCommand,
    &completeCommand,
};

} // namespace

std::span<const Command* const> getCommands() { return commands; }

const Command* findCommand(std::string_view name) {
    const auto found = std::ranges::find(commands, name, &Command::name);
    return found == commands.end() ? nullptr : *found;
}

std::vector<std::string> getCommandNames(std::string_view group) {
    const std::string start = group.empty() ? "" : std::string(group) + ' ';
    std::vector<std::string> names;
    for (const Command* command : commands) {
        const std::string_view name = command->name;
        if (!command->isHidden && name.starts_with(start) &&
            name.find(' ', start.size()) == std::string_view::npos) {
            names.emplace_back(name.substr(start.size()));
        }
    }
    return names;
}

std::string getLongestName(const Option& option) {
    const std::string_view names = option.names;
    return std::string(names.substr(names.rfind(',') + 1));
}

} // namespace jobticket
