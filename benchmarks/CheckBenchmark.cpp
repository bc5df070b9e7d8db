#include "CheckBenchmark.h"

#include <stdexcept>
#include <utility>

#include <benchmark/benchmark.h>

#include "ListWalk.h"
#include "SampleTickets.h"
#include "ZENT_API/ZENTSession.h"
#include "ocore/Checking/SettingsProblemList.h"
#include "ocore/Checking/SettingsValidator.h"

namespace zent::bench {

namespace {

FeatureSettings& settingsOf(const TicketSession& session) {
    const TarvoJtSettingsType handle = session.settings();
    return ZENTSession::getSettingsObject(&handle);
}

std::size_t countProblems(const TicketSession& session) {
    SettingsProblemList problems;
    validate(ZENTSession::getSessionObject(session.session()).getCapabilities(),
             settingsOf(session), problems);
    return problems.getCount();
}

std::string toRepaired(const std::string& xml) {
    TicketSession session;
    session.importTicket(xml);
    session.applyCapabilities(ZENT_APPLY_SILENT_REPAIR);
    return std::string(session.exportTicket());
}

/// Registers a benchmark that counts the problems of a ticket.
template <typename Work>
void add(const std::string& name, std::size_t problems, Work work) {
    benchmark::RegisterBenchmark(name.c_str(), [work, problems](benchmark::State& state) {
        work(state);
        state.counters["problems"] = static_cast<double>(problems);
    });
}

} // namespace

// The first check brings the ticket into shape, so that all that follow find the same.
CheckBenchmark::Ticket::Ticket(std::string ticketName, const std::string& xml)
    : name(std::move(ticketName)) {
    session.importTicket(xml);
    const bool hasProblems = session.applyCapabilities(ZENT_APPLY_SILENT_KEEP);
    problems = countProblems(session);
    if (hasProblems != (problems != 0)) {
        throw std::logic_error("the call doesn't tell what the check finds");
    }
}

CheckBenchmark::CheckBenchmark() {
    for (const auto& [name, xml] :
         {std::pair("small", makeSmallTicket()), std::pair("full", makeFullTicket()),
          std::pair("overrides-1000", makeOverridesTicket(1000))}) {
        m_tickets.emplace_back(name, xml);
        m_tickets.emplace_back(std::string(name) + "-repaired", toRepaired(xml));
    }
    for (const int count : {10, 100, 10000}) {
        m_tickets.emplace_back("overrides-" + std::to_string(count), makeOverridesTicket(count));
    }
}

void CheckBenchmark::registerAll() {
    for (const Ticket& ticket : m_tickets) {
        registerCheck(ticket);
        if (ticket.problems != 0) {
            registerRepair(ticket);
        }
    }
}

void CheckBenchmark::registerCheck(const Ticket& ticket) {
    const std::string name = "check/" + ticket.name;
    add(name + "/zent", ticket.problems, [&](benchmark::State& state) {
        for ([[maybe_unused]] auto each : state) {
            ticket.session.applyCapabilities(ZENT_APPLY_SILENT_KEEP);
        }
    });
    add(name + "/walk", ticket.problems, [&](benchmark::State& state) {
        const AttrNodeList& list = *settingsOf(ticket.session).getAttrNodeList();
        for ([[maybe_unused]] auto each : state) {
            benchmark::DoNotOptimize(walkList(list));
        }
    });
}

void CheckBenchmark::registerRepair(const Ticket& ticket) {
    add("repair/" + ticket.name + "/zent", ticket.problems, [&](benchmark::State& state) {
        FeatureSettings& settings = settingsOf(ticket.session);
        const FeatureSettings unrepaired = settings;
        for ([[maybe_unused]] auto each : state) {
            ticket.session.applyCapabilities(ZENT_APPLY_SILENT_REPAIR);
            state.PauseTiming();
            settings = unrepaired;
            state.ResumeTiming();
        }
    });
}

} // namespace zent::bench
