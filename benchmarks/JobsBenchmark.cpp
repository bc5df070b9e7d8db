#include "JobsBenchmark.h"

#include <cstdio>
#include <deque>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "ChildProcess.h"
#include "SampleTickets.h"
#include "TicketSession.h"

namespace zent::bench {

namespace {

constexpr int firstJobs = 1000;
constexpr int allJobs = 10000;

constexpr PrinterChoice printers[] = {
    {.model = 1, .pdl = 1, .form = ZENT_INSTRUCTIONS_XML},
    {.model = 2, .pdl = 2, .form = ZENT_INSTRUCTIONS_BY_MODEL},
    {.model = 11, .pdl = 2, .form = ZENT_INSTRUCTIONS_STREAM},
    {.model = 17, .pdl = 1, .form = ZENT_INSTRUCTIONS_STREAM},
    {.model = 28, .pdl = 1, .form = ZENT_INSTRUCTIONS_XML},
    {.model = 43, .pdl = 1, .form = ZENT_INSTRUCTIONS_BY_MODEL},
};

struct Ticket {
    std::string bytes;
    std::uint32_t format;
};

/// Tickets of all kinds, each as a document and as a blob.
std::vector<Ticket> makeTickets() {
    std::vector<Ticket> tickets;
    for (const std::string& xml : {makeSmallTicket(), makeFullTicket(), makeOverridesTicket(10)}) {
        TicketSession session;
        session.importTicket(xml);
        tickets.push_back({xml, ZENT_FORMAT_XML});
        tickets.push_back(
            {std::string(session.exportTicket(ZENT_FORMAT_STATE)), ZENT_FORMAT_STATE});
    }
    return tickets;
}

/// Reads a number of kilobytes from what the system reports about the process.
double readMemory(const std::string& name) {
    std::ifstream status("/proc/self/status");
    std::string word;
    double kilobytes = 0;
    while (status >> word) {
        if (word == name && status >> kilobytes) {
            return kilobytes;
        }
    }
    throw std::runtime_error("the system doesn't tell " + name);
}

std::u16string toText(int number) {
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

/// Sets the texts that differ between any two jobs.
void setNames(const TicketSession& session, const std::u16string& name) {
    for (const auto* const feature : {u"job-name", u"job-account-id", u"job-message-to-operator"}) {
        require(fnSetStringValue(session.session(), session.settings(), feature, name.c_str(), 0));
    }
}

class Jobs {
public:
    Jobs() : m_tickets(makeTickets()) {
        for (const PrinterChoice& printer : printers) {
            m_sessions.emplace_back(printer);
        }
    }

    void runTo(int count) {
        for (; m_done < count; ++m_done) {
            const auto number = static_cast<std::size_t>(m_done);
            const Ticket& ticket = m_tickets[number / m_sessions.size() % m_tickets.size()];
            TicketSession& session = m_sessions[number % m_sessions.size()];
            session.importTicket(ticket.bytes, ticket.format);
            setNames(session, u"Job " + toText(m_done));
            session.applyCapabilities(ZENT_APPLY_SILENT_REPAIR);
            const std::string document = "Document " + std::to_string(m_done) + ".pdf";
            benchmark::DoNotOptimize(session.getInstructions(document.c_str()).data());
        }
    }

private:
    std::vector<Ticket> m_tickets;
    std::deque<TicketSession> m_sessions;
    int m_done = 0;
};

} // namespace

void registerJobs() {
    constexpr int repetitions = 3; // each takes seconds
    benchmark::RegisterBenchmark(
        "jobs/10000",
        [](benchmark::State& state) {
        for ([[maybe_unused]] auto each : state) {
            const std::vector<double> numbers = runChild(jobsOption);
            state.SetIterationTime(numbers.at(0));
            state.counters["rate"] = allJobs / numbers.at(0);
            state.counters["after-1000"] = numbers.at(1);
            state.counters["after-10000"] = numbers.at(2);
            state.counters["peak"] = numbers.at(3);
        }
        })
        ->UseManualTime()
        ->Iterations(1)
        ->Repetitions(repetitions);
}

void printJobs() {
    Jobs jobs;
    const double begin = getProcessorSeconds();
    jobs.runTo(firstJobs);
    const double memoryAfterFirst = readMemory("VmRSS:");
    jobs.runTo(allJobs);
    const double seconds = getProcessorSeconds() - begin;
    std::printf("%.9f %.0f %.0f %.0f\n", seconds, memoryAfterFirst, readMemory("VmRSS:"),
                readMemory("VmHWM:"));
}

} // namespace zent::bench
