#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Session.h"

namespace jobticket {

/// What a preference holds, and how it is written on the command line. Numbered as in the library.
enum class PreferenceType : std::uint32_t {
    boolean = 1, // true or false
    number,      // of 32 bits
    text,
    unit, // inches (1) or metric (2); of well-known preferences only
    data, // bytes, as hexadecimal digits
};

/// "bool", "number", "text", "unit" or "data".
std::string toText(PreferenceType type);
/// Raises ProgramError (usage) for any other text. A unit of measure can't be named.
PreferenceType parsePreferenceType(const std::string& text);

/// A preference that the library itself knows.
struct WellKnownPreference {
    std::string name;
    PreferenceType type;
    std::string defaultValue;
};

/// All of them, in the library's order, with the defaults of the present user.
std::vector<WellKnownPreference> getWellKnownPreferences();

/// The set of preferences that a session uses.
class Preferences {
public:
    explicit Preferences(const Session& session) : m_session(session.getHandle()) {}

    /// The value that is stored, if there is one.
    std::optional<std::string> find(const std::string& name, PreferenceType type) const;
    /// Raises ProgramError (badValue) for a value that isn't of the type.
    void store(const std::string& name, PreferenceType type, const std::string& value) const;

private:
    std::string read(const std::string& name, PreferenceType type, bool otherwise) const;

    ZentSessionType m_session;
};

} // namespace jobticket
