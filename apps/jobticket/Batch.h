#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "Errors.h"
#include "Listing.h"

namespace jobticket {

/// Does the same with each of several tickets, whatever becomes of the others, and says on standard
/// error how many there were and how many went wrong. Gives the highest status of all. With one
/// ticket alone it is as if only that had been asked for. Whoever waits for longer than a second at
/// a terminal sees how far it is.
ExitStatus runOnEach(const std::vector<std::string>& tickets, bool isQuiet,
                     const std::function<ExitStatus(const std::string& ticket)>& run);

/// The beginning of what a command lists of a ticket as JSON; of one among several it has its name.
Json startJson(const std::string& ticket, bool isOneOfSeveral);

/// The same count for what isn't a ticket: "12 of 51", as long as it takes longer than a second.
class Progress {
public:
    explicit Progress(std::size_t total) : m_total(total) {}
    ~Progress() { clear(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void show(std::size_t done);
    /// Before anything else is written.
    void clear();

private:
    std::size_t m_total;
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
    std::size_t m_width = 0; // of what stands there
};

} // namespace jobticket
