#pragma once

#include <cstdint>
#include <exception>
#include <utility>

#include "ocore/Faults/ResultCode.h"
#include "ocore/Text/CXString.h"

namespace zent {

/// Levels that a raise site passes to the trace facility.
namespace traceLevel {
constexpr std::uint32_t general = 1024;
constexpr std::uint32_t xmlLayer = 8192;
constexpr std::uint32_t handleCheck = 32768;
} // namespace traceLevel

/// Where and at which level the next exception is raised. Stored in one guarded record for the
/// whole process, taken over and reset by the next TarvoException that is built; two threads that
/// raise at one moment can exchange locations, which are diagnostic only.
void setExceptionLocation(const CXString& file, std::int32_t line);
void setExceptionLevel(std::uint32_t level);

/// The resource strings that tell the user of a failure.
struct ReportTexts {
    std::uint32_t failure; // what failed
    std::uint32_t advice;  // what to do about it

    /// The texts for a failure that nothing else is known of.
    static ReportTexts ofAny();
};

/// Base of all failures inside the library. Copies share nothing that can change.
class TarvoException : public std::exception {
public:
    TarvoException();
    explicit TarvoException(const CXString& message);
    /// The mask is for the trace facility alone and isn't kept.
    TarvoException(std::uint32_t traceMask, CXString message);
    TarvoException(const TarvoException&) = default;
    TarvoException& operator=(const TarvoException&) = default;
    ~TarvoException() override = default;

    /// What the exported call returns for this failure.
    virtual ResultCode getResultCode() const = 0;
    /// The number of the class, a colon and the number of the detail, such as "026:000".
    virtual CXString getErrorId() const = 0;
    virtual ReportTexts getReportTexts() const { return ReportTexts::ofAny(); }
    /// What this failure alone can explain to the user; empty for most.
    virtual CXString getExplanation() const { return {}; }
    /// The kind of failure among those of its class, for the trace; empty for most.
    virtual CXString getErrorType() const { return {}; }

    const CXString& getLocationFile() const { return m_locationFile; }
    std::int32_t getLocationLine() const { return m_locationLine; }
    std::uint32_t getTraceLevel() const { return m_traceLevel; }
    /// The developers' text: English, never translated, ends in CR LF.
    const CXString& getMessage() const { return m_message; }

private:
    CXString m_locationFile;
    std::int32_t m_locationLine = 0;
    std::uint32_t m_traceLevel = traceLevel::general;
    CXString m_message;
};

/// "025:000:0674": the error id and the line, which is all that a user can read out on the phone.
/// "000:000:000" for exceptions that are not the library's own.
CXString getErrorNumberText(const std::exception& exception);
/// Type, location and message of an exception, for the trace.
CXString getDetailsReport(const std::exception& exception);
/// What an exported call returns for a caught exception.
ResultCode resultCodeOf(const std::exception& exception) noexcept;

/// The place in the source where an exception is raised.
struct SourcePlace {
    const char* file;
    std::int32_t line;
    static constexpr SourcePlace here(const char* file = __builtin_FILE(),
                                      std::int32_t line = __builtin_LINE()) {
        return {file, line};
    }
};

/// Notes the place (the file's bare name) and the level, for the exception that is built next.
void noteRaise(SourcePlace place, std::uint32_t level);

/// Raises an exception of class E with a formatted message, the way every raise site does: first
/// the location, then the level, then the throw. The format is ASCII and its "%s" takes wide text.
template <typename E>
class Raise {
public:
    explicit Raise(std::uint32_t level = traceLevel::general,
                   SourcePlace place = SourcePlace::here())
        : m_level(level), m_place(place) {}

    template <typename... Args>
    [[noreturn]] void operator()(const char* format, const Args&... args) const {
        const CXString message = formatText(format, args...);
        noteRaise(m_place, m_level);
        throw E(message);
    }

private:
    std::uint32_t m_level;
    SourcePlace m_place;
};

} // namespace zent
