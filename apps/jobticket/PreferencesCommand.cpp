#include <algorithm>

#include <CLI/CLI.hpp>

#include "Commands.h"
#include "Listing.h"
#include "PreferenceSetOptions.h"
#include "Preferences.h"
#include "Text.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

struct PreferencesOptions {
    PreferenceSetOptions set;
    std::string name;
    std::string value;
    std::string type;
};

std::optional<WellKnownPreference> findWellKnown(const std::string& name) {
    const std::vector<WellKnownPreference> all = getWellKnownPreferences();
    const auto found = std::ranges::find(all, name, &WellKnownPreference::name);
    return found == all.end() ? std::nullopt : std::optional(*found);
}

PreferenceType typeOf(const PreferencesOptions& options) {
    if (!options.type.empty()) {
        return parsePreferenceType(options.type);
    }
    const std::optional<WellKnownPreference> wellKnown = findWellKnown(options.name);
    return wellKnown ? wellKnown->type : PreferenceType::text;
}

std::string printable(const std::string& text) { return toPrintable(fromUtf8(text)); }

ExitStatus list(const PreferencesOptions& options) {
    const Session session = openSession(options.set);
    std::vector<std::vector<std::string>> rows;
    for (const WellKnownPreference& preference : getWellKnownPreferences()) {
        const auto stored = Preferences(session).find(preference.name, preference.type);
        rows.push_back({preference.name, toText(preference.type),
                        printable(stored.value_or(preference.defaultValue)),
                        stored ? "" : "(default)"});
    }
    writeFile(std::string(standardStream), layOut(rows));
    return ExitStatus::success;
}

ExitStatus get(const PreferencesOptions& options) {
    const Session session = openSession(options.set);
    const auto stored = Preferences(session).find(options.name, typeOf(options));
    const auto wellKnown = findWellKnown(options.name);
    if (!stored && !wellKnown) {
        throw ProgramError(ExitStatus::badValue,
                           inQuotes(options.name) + " isn't stored in this set of preferences");
    }
    const std::string& value = stored ? *stored : wellKnown->defaultValue;
    writeFile(std::string(standardStream), value + "\n");
    return ExitStatus::success;
}

ExitStatus set(const PreferencesOptions& options) {
    const Session session = openSession(options.set);
    Preferences(session).store(options.name, typeOf(options), options.value);
    return ExitStatus::success;
}

} // namespace

void addPreferencesCommand(CLI::App& program, Action& action) {
    CLI::App* command = program.add_subcommand(
        "preferences", "Read and set the user's preferences, which the calls and dialogs go by");
    command->require_subcommand(1);
    const auto options = std::make_shared<PreferencesOptions>(); // of whichever command is given
    const auto add = [&](const char* name, const char* help,
                         ExitStatus (*run)(const PreferencesOptions&)) {
        CLI::App* added = command->add_subcommand(name, help);
        addPreferenceSetOptions(*added, options->set);
        added->callback(
            [options, run, &action] { action = [options, run] { return run(*options); }; });
        return added;
    };
    const auto addName = [&](CLI::App& added) {
        added.add_option("NAME", options->name, "The preference")->required();
        added.add_option("--type", options->type,
                         "bool, number, text or data (hexadecimal): for names of your own, which "
                         "are text without it");
    };
    add("list", "List the preferences that the library itself knows", list);
    addName(*add("get", "Print the value of a preference, or its default", get));
    CLI::App* setter = add("set", "Store the value of a preference", set);
    addName(*setter);
    setter->add_option("VALUE", options->value, "true or false; a number; inches or metric; ...")
        ->required();
}

} // namespace jobticket
