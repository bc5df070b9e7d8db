#include "Preferences.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <utility>

#include "Command.h"
#include "Errors.h"
#include "Listing.h"
#include "Printers.h"
#include "Text.h"
#include "TicketFile.h"
#include "ZENT_API/ZENTSession.h"
#include "ocore/Faults/Exceptions.h"
#include "ocore/User/Registry.h"
#include "ocore/User/User.h"
#include "ocore/User/UserPreferences.h"

namespace jobticket {

namespace {

// The names are in the order of the types' numbers, from 1 on.
constexpr std::array<const char*, 5> typeNames = {"bool", "number", "text", "unit", "data"};

constexpr std::int32_t inches = 1;
constexpr std::int32_t metric = 2;

std::string writeBool(bool value) { return value ? "true" : "false"; }

std::string writeUnit(std::int32_t unit) {
    return unit == inches ? "inches" : unit == metric ? "metric" : std::to_string(unit);
}

std::string writeData(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        text += digits[byte >> 4U];
        text += digits[byte & 0xFU];
    }
    return text;
}

[[noreturn]] void fail(const std::string& name, const std::string& value,
                       const std::string& wanted) {
    throw ProgramError(ExitStatus::badValue,
                       toPrintable(fromUtf8(name)) + ": " + inQuotes(value) + " isn't " + wanted);
}

bool readBool(const std::string& name, const std::string& value) {
    const bool isTrue = value == "true" || value == "1";
    if (!isTrue && value != "false" && value != "0") {
        fail(name, value, "true or false");
    }
    return isTrue;
}

std::optional<std::int32_t> tryNumber(std::string_view text, int base) {
    std::int32_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, base);
    return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

std::int32_t readNumber(const std::string& name, const std::string& value,
                        const char* wanted = "a number of 32 bits") {
    const std::optional<std::int32_t> number = tryNumber(value, 10);
    if (!number) {
        fail(name, value, wanted);
    }
    return *number;
}

std::int32_t readUnit(const std::string& name, const std::string& value) {
    if (value == "inches" || value == "metric") {
        return value == "inches" ? inches : metric;
    }
    return readNumber(name, value, "inches or metric");
}

std::string readData(const std::string& name, const std::string& value) {
    std::string bytes;
    for (std::size_t at = 0; at < value.size(); at += 2) {
        const std::string_view digits = std::string_view(value).substr(at, 2);
        const auto byte = tryNumber(digits, 16);
        if (digits.size() < 2 || digits.front() == '-' || !byte) {
            fail(name, value, "a row of bytes, of two hexadecimal digits each");
        }
        bytes += static_cast<char>(*byte);
    }
    return bytes;
}

ZentText toKey(const std::string& name) { return toZent(fromUtf8(name)); }

// `otherwise` chooses one of two defaults for where nothing is stored.

std::string readStoredText(ZentSessionType session, const std::string& name, bool otherwise) {
    constexpr const char* call = "fnGetPreferenceStringValue";
    const ZentText key = toKey(name);
    const ZentText fallback(1, otherwise ? ZentChar('1') : ZentChar('0'));
    auto text = fetch<ZentText>(call, name, [&](ZentChar* buffer, std::uint32_t* size) {
        return fnGetPreferenceStringValue(session, key.c_str(), buffer, size, fallback.c_str());
    });
    text.pop_back(); // the terminator
    return toUtf8(fromZent(text));
}

std::string readStoredData(ZentSessionType session, const std::string& name, bool otherwise) {
    constexpr const char* call = "fnGetPreferenceDataValue";
    const ZentText key = toKey(name);
    const char fallback = otherwise ? 1 : 0;
    return writeData(fetch<std::string>(call, name, [&](void* buffer, std::uint32_t* size) {
        return fnGetPreferenceDataValue(session, key.c_str(), buffer, size, &fallback, 1);
    }));
}

std::string writeDefault(const zent::PreferenceInfo& info) {
    switch (static_cast<PreferenceType>(info.dataType)) {
    case PreferenceType::boolean:
        return writeBool(info.value.getAsBoolValue());
    case PreferenceType::unit: // follows from the user's locale
        return writeUnit(zent::User::usesInches() ? inches : metric);
    case PreferenceType::number:
        return std::to_string(info.value.getAsLongValue());
    default:
        return toUtf8(info.value.getAsString());
    }
}

void storeIn(const zent::UserPreferences& preferences, const std::string& name, PreferenceType type,
             const std::string& value) {
    const zent::CXString key(fromUtf8(name));
    switch (type) {
    case PreferenceType::boolean:
        preferences.setBooleanPreference(key, readBool(name, value));
        break;
    case PreferenceType::number:
        preferences.setLongPreference(key, readNumber(name, value));
        break;
    case PreferenceType::unit:
        preferences.setLongPreference(key, readUnit(name, value));
        break;
    case PreferenceType::text:
        preferences.setStringPreference(key, zent::CXString(fromUtf8(value)));
        break;
    case PreferenceType::data: {
        const std::string bytes = readData(name, value);
        preferences.setDataPreference(key, zent::ByteBuffer(bytes.data(), bytes.size()));
        break;
    }
    }
}

} // namespace

std::string toText(PreferenceType type) { return typeNames[static_cast<std::size_t>(type) - 1]; }

PreferenceType parsePreferenceType(const std::string& text) {
    for (const PreferenceType type : {PreferenceType::boolean, PreferenceType::number,
                                      PreferenceType::text, PreferenceType::data}) {
        if (toText(type) == text) {
            return type;
        }
    }
    throw ProgramError(ExitStatus::usage,
                       "--type: " + inQuotes(text) + " is none of bool, number, text, data");
}

std::vector<WellKnownPreference> getWellKnownPreferences() {
    const zent::UserPreferences preferences{zent::CXString()};
    std::vector<WellKnownPreference> result;
    for (const zent::PreferenceInfo& info : preferences.getWellKnownPreferences()) {
        result.push_back(
            {toUtf8(info.name), static_cast<PreferenceType>(info.dataType), writeDefault(info)});
    }
    return result;
}

std::string Preferences::read(const std::string& name, PreferenceType type, bool otherwise) const {
    const ZentText keyText = toKey(name);
    const ZentChar* key = keyText.c_str();
    switch (type) {
    case PreferenceType::boolean: {
        ZentBool value = 0;
        check(fnGetPreferenceBoolValue(m_session, key, &value, otherwise ? 1 : 0),
              "fnGetPreferenceBoolValue", name);
        return writeBool(value != 0);
    }
    case PreferenceType::number:
    case PreferenceType::unit: {
        std::int32_t value = 0;
        check(fnGetPreferenceNumberValue(m_session, key, &value, otherwise ? 1 : 0),
              "fnGetPreferenceNumberValue", name);
        return type == PreferenceType::unit ? writeUnit(value) : std::to_string(value);
    }
    case PreferenceType::text:
        return readStoredText(m_session, name, otherwise);
    case PreferenceType::data:
        break;
    }
    return readStoredData(m_session, name, otherwise);
}

std::optional<std::string> Preferences::find(const std::string& name, PreferenceType type) const {
    // A stored value is read whatever the default is, so that two defaults show whether there is
    // one.
    std::string value = read(name, type, false);
    return value == read(name, type, true) ? std::optional(std::move(value)) : std::nullopt;
}

void Preferences::store(const std::string& name, PreferenceType type,
                        const std::string& value) const {
    // The exported calls aren't used, since their results can't say where the store lies and what
    // is wrong with it.
    const auto preferences = zent::ZENTSession::getSessionObject(m_session).getUserPreferences();
    try {
        storeIn(*preferences, name, type, value);
    } catch (const zent::RegistryRequestException& exception) {
        throw ProgramError(ExitStatus::libraryFailure,
                           toPrintable(fromUtf8(name)) + ": can't be stored in " +
                               toPrintable(exception.getExplanation().view()));
    } catch (const zent::TarvoException& exception) {
        throw LibraryError(exception.getResultCode(), "UserPreferences", name);
    }
}

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
    std::vector<Row> rows;
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
