#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "Errors.h"
#include "Listing.h"

namespace jobticket {

/// Runs a command on each of several tickets, even if it fails on some, and says on standard error
/// how many there were and how many failed. Gives the highest status of all. A single ticket is run
/// without that report. After a second a terminal shows how far the command has got.
ExitStatus runOnEach(const std::vector<std::string>& tickets, bool isQuiet,
                     const std::function<ExitStatus(const std::string& ticket)>& run);

/// The beginning of what a command lists of a ticket as JSON; of one among several it has its name.
Json startJson(const std::string& ticket, bool isOneOfSeveral);

/// Shows at a terminal how far a long task has got, such as "12 of 51", if it takes longer than a
/// second.
class Progress {
public:
    explicit Progress(std::size_t total) : m_total(total) {}
    ~Progress() { clear(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void show(std::size_t done);
    /// Removes the text; to be called before anything else is written.
    void clear();

private:
    std::size_t m_total;
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
    std::size_t m_width = 0; // of the text that is shown
};

} // namespace jobticket
