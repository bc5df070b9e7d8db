#pragma once

#include "support/Testing.h"
#include "zent27.h"

namespace zent::test {

/// Text of the interface; tests write it in ASCII.
using Text = std::basic_string<ZentChar>;
inline Text wide(std::string_view ascii) { return {ascii.begin(), ascii.end()}; }
std::string narrow(const Text& text);

struct Imported {
    ZentResult result = 0;
    ZentBool problems = 7; // that number if it isn't written
    ZentBool applied = 7;
};

/// An open session and its own ticket, used as any application would use them. The ticket is empty
/// at first: what a new session holds has tests of its own.
class Session {
public:
    explicit Session(bool silent = true, std::uint32_t model = 1);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    ZentSessionType handle() const { return m_handle; }
    TarvoJtSettingsType ticket() const { return m_ticket; }

    /// Results are checked on the way: each failure is a test's.
    TarvoJtSettingsType newSettings() const;
    void release(TarvoJtSettingsType settings) const;
    /// What the printer lacks is kept.
    void import(std::string_view data, std::uint32_t format = ZENT_FORMAT_XML) const;
    Imported tryImport(std::string_view data, std::uint32_t format = ZENT_FORMAT_XML,
                       std::uint32_t mode = ZENT_APPLY_SILENT_REPAIR) const;
    std::uint32_t exportSize(std::uint32_t format = ZENT_FORMAT_XML) const;
    std::string exported(std::uint32_t format = ZENT_FORMAT_XML) const;

    ZentResult setString(const char* feature, const char* value, std::uint32_t index = 0) const;
    ZentResult setNumber(const char* feature, std::int32_t value, std::uint32_t index = 0) const;

private:
    ZentSessionType m_handle = nullptr;
    TarvoJtSettingsType m_ticket = nullptr;
};

/// Values of settings as text: "one-sided", "5", "1..5", "600x300/3", "21000x29700"; "none" if
/// there is none and "result 12" if the call failed.
std::string stringOf(const Session& session, TarvoJtSettingsType settings, const char* feature,
                     std::uint32_t index = 0);
std::string numberOf(const Session& session, TarvoJtSettingsType settings, const char* feature,
                     std::uint32_t index = 0);
std::string rangeOf(const Session& session, TarvoJtSettingsType settings, const char* feature,
                    std::uint32_t index = 0);
std::string resolutionOf(const Session& session, TarvoJtSettingsType settings, const char* feature,
                         std::uint32_t index = 0);
std::string sizeOf(const Session& session, TarvoJtSettingsType settings);
std::string countOf(const Session& session, TarvoJtSettingsType settings, const char* feature);

} // namespace zent::test
