// A command on many tickets goes on after a failure, so that one bad file doesn't hide what the
// others would have shown.

#include "Batch.h"

#include <algorithm>
#include <iostream>

#include "Platform.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

std::string inPlural(std::size_t count, const std::string& noun) {
    return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
}

std::string summarize(std::size_t total, std::size_t different, std::size_t failed) {
    std::string text = inPlural(total, "ticket");
    if (different == 0 && failed == 0) {
        return text + ", all of them fine";
    }
    text += different == 0 ? "" : ", " + std::to_string(different) + " with problems";
    return text + (failed == 0 ? "" : ", " + std::to_string(failed) + " failed");
}

} // namespace

Json startJson(const std::string& ticket, bool isOneOfSeveral) {
    Json json = Json::object();
    if (isOneOfSeveral) {
        json.add("ticket", nameForMessages(ticket));
    }
    return json;
}

void Progress::show(std::size_t done) {
    constexpr std::chrono::seconds patience(1);
    const bool isSeen = platform::isTerminal(stderr) && !platform::isTerminal(stdout);
    if (!isSeen || std::chrono::steady_clock::now() - m_start < patience) {
        return;
    }
    clear();
    const std::string text = std::to_string(done) + " of " + std::to_string(m_total);
    std::cerr << text << std::flush;
    m_width = text.size();
}

void Progress::clear() {
    if (m_width > 0) {
        std::cerr << '\r' << std::string(m_width, ' ') << '\r' << std::flush;
        m_width = 0;
    }
}

ExitStatus runOnEach(const std::vector<std::string>& tickets, bool isQuiet,
                     const std::function<ExitStatus(const std::string&)>& run) {
    if (tickets.size() == 1) {
        return run(tickets.front());
    }
    if (std::ranges::count(tickets, standardStream) > 1) {
        throw ProgramError(ExitStatus::usage, "only one of the tickets can be standard input");
    }
    ExitStatus worst = ExitStatus::success;
    std::size_t different = 0;
    std::size_t failed = 0;
    Progress progress(tickets.size());
    for (std::size_t index = 0; index < tickets.size(); ++index) {
        progress.show(index);
        ExitStatus status = ExitStatus::success;
        try {
            status = run(tickets[index]);
            different += status == ExitStatus::differences ? 1 : 0;
        } catch (const ProgramError& error) {
            progress.clear();
            std::cerr << "jobticket: " << error.what() << '\n';
            status = error.getStatus();
            ++failed;
        }
        worst = std::max(worst, status);
    }
    progress.clear();
    if (!isQuiet) {
        std::cerr << "jobticket: " << summarize(tickets.size(), different, failed) << '\n';
    }
    return worst;
}

} // namespace jobticket
