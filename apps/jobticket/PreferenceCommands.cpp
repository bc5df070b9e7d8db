#include <algorithm>
#include <array>

#include "Command.h"
#include "Listing.h"
#include "Preferences.h"
#include "Printers.h"
#include "Text.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

std::optional<WellKnownPreference> findWellKnown(const std::string& name) {
    const std::vector<WellKnownPreference> all = getWellKnownPreferences();
    const auto found = std::ranges::find(all, name, &WellKnownPreference::name);
    return found == all.end() ? std::nullopt : std::optional(*found);
}

PreferenceType typeOf(const Options& options) {
    if (!options.preferenceType.empty()) {
        return parsePreferenceType(options.preferenceType);
    }
    const std::optional<WellKnownPreference> wellKnown = findWellKnown(options.preference);
    return wellKnown ? wellKnown->type : PreferenceType::text;
}

std::string printable(const std::string& text) { return toPrintable(fromUtf8(text)); }

ExitStatus list(const Options& options) {
    const Session session = openSession(options);
    std::vector<std::vector<std::string>> rows;
    for (const WellKnownPreference& preference : getWellKnownPreferences()) {
        const auto stored = Preferences(session).find(preference.name, preference.type);
        rows.push_back({preference.name, toText(preference.type),
                        printable(stored.value_or(preference.defaultValue)),
                        stored ? "" : "(default)"});
    }
    writeStandardOutput(layOut(rows));
    return ExitStatus::success;
}

ExitStatus get(const Options& options) {
    const Session session = openSession(options);
    const auto stored = Preferences(session).find(options.preference, typeOf(options));
    const auto wellKnown = findWellKnown(options.preference);
    if (!stored && !wellKnown) {
        throw ProgramError(ExitStatus::badValue, inQuotes(options.preference) +
                                                     " isn't stored in this set of preferences");
    }
    const std::string& value = stored ? *stored : wellKnown->defaultValue;
    writeStandardOutput(value + "\n");
    return ExitStatus::success;
}

ExitStatus set(const Options& options) {
    const Session session = openSession(options);
    Preferences(session).store(options.preference, typeOf(options), options.preferenceValue);
    return ExitStatus::success;
}

constexpr Option nameArgument = {.names = "NAME",
                                 .operand = Operand::preference,
                                 .target = in<&Options::preference>,
                                 .help = "The preference",
                                 .isRequired = true};
constexpr Option typeOption = {.names = "--type",
                               .operand = Operand::preferenceType,
                               .target = in<&Options::preferenceType>,
                               .help = "bool, number, text or data (hexadecimal): for names of "
                                       "your own, which are text without it"};

constexpr std::array listOptions = {modelOption, languageOption, preferenceSetOption,
                                    printerPreferencesOption};
constexpr std::array getOptions = {nameArgument,   typeOption,          modelOption,
                                   languageOption, preferenceSetOption, printerPreferencesOption};
constexpr std::array setOptions = {nameArgument,
                                   Option{.names = "VALUE",
                                          .operand = Operand::text,
                                          .target = in<&Options::preferenceValue>,
                                          .help = "true or false; a number; inches or metric; ...",
                                          .isRequired = true},
                                   typeOption,
                                   modelOption,
                                   languageOption,
                                   preferenceSetOption,
                                   printerPreferencesOption};

} // namespace

const Command preferencesCommand = {
    "preferences",
    "Read and set the user's preferences, which the calls and dialogs go by",
    {},
    nullptr};
const Command preferencesListCommand = {"preferences list",
                                        "List the preferences that the library itself knows",
                                        listOptions, list, "jobticket preferences list\n"};
const Command preferencesGetCommand = {
    "preferences get", "Print the value of a preference, or its default", getOptions, get,
    "jobticket preferences get JOB_NAME_PREFERENCE\n"};
const Command preferencesSetCommand = {
    "preferences set", "Store the value of a preference", setOptions, set,
    "jobticket preferences set USE_LOGON_NAME_PREFERENCE false\n"};

} // namespace jobticket
