#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

#include "zent27.h"

namespace jobticket {

/// The exit status of the program, by which a script can act on the kind of failure. The manual
/// page lists these numbers; they never change.
enum class ExitStatus : int {
    success = 0,
    differences = 1,    // tickets differ, or a printer can't do all of one
    usage = 2,          // the command line makes no sense
    unreadable = 3,     // a file can't be read
    invalidTicket = 4,  // what was read is no ticket, state blob or media library
    badValue = 5,       // a feature, printer or value that the tables don't know
    unwritable = 6,     // the result can't be written
    libraryFailure = 7, // anything else that the library reports
};

/// A failure that ends the program with a message and a status.
class ProgramError : public std::runtime_error {
public:
    ProgramError(ExitStatus status, const std::string& message)
        : std::runtime_error(message), m_status(status) {}

    ExitStatus getStatus() const { return m_status; }

private:
    ExitStatus m_status;
};

/// The failure of an exported call. The message names the call, its subject and its result; the
/// status follows from the result.
class LibraryError : public ProgramError {
public:
    /// `subject` is the feature or file that the call was about; may be empty.
    LibraryError(ZentResult result, const char* call, const std::string& subject);

    ZentResult getResult() const { return m_result; }

private:
    ZentResult m_result;
};

/// Raises LibraryError unless the result is ZENT_OK.
void check(ZentResult result, const char* call, const std::string& subject = {});

/// Fetches what an exported call hands out in a buffer: the call is asked first for the size and
/// then for the content. `call` takes the buffer and the size; `name` and `subject` are for
/// messages.
template <typename Content, typename Call>
Content fetch(const char* name, const std::string& subject, const Call& call) {
    std::uint32_t size = 0;
    check(call(nullptr, &size), name, subject);
    Content content(size, typename Content::value_type());
    check(call(content.data(), &size), name, subject);
    return content;
}

} // namespace jobticket
