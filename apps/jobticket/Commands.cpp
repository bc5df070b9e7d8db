#include <algorithm>
#include <array>

#include "Command.h"

namespace jobticket {

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
