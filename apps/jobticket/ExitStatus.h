#pragma once

#include <stdexcept>
#include <string>

namespace jobticket {

/// What the program tells its caller, so that a script can act on the kind of failure. The manual
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

} // namespace jobticket
