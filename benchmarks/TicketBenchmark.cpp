#include "TicketBenchmark.h"

#include <stdexcept>
#include <utility>

#include <benchmark/benchmark.h>

#include "SampleTickets.h"

namespace zent::bench {

namespace {

/// Registers a benchmark that runs `work` on a ticket.
template <typename Work>
void add(const std::string& name, const std::string& xml, Work work) {
    benchmark::RegisterBenchmark(name.c_str(), [work, &xml](benchmark::State& state) {
        for ([[maybe_unused]] auto each : state) {
            work();
        }
        state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(xml.size()));
    });
}

} // namespace

TicketBenchmark::Ticket::Ticket(std::string ticketName, std::string text)
    : name(std::move(ticketName)), xml(std::move(text)), pieces(xml) {
    session.importTicket(xml);
    // The import may change the form, so that what it gives is what all of them write.
    xml = session.exportTicket();
    pieces = XercesWrite(xml);
    if (pieces.writePieces() != xml || pieces.writeWhole() != xml) {
        throw std::logic_error("the floor of writing doesn't write the ticket");
    }
}

TicketBenchmark::TicketBenchmark(const std::string& dtdPath)
    : m_xerces(dtdPath), m_libxml2(dtdPath) {
    m_tickets.emplace_back("small", makeSmallTicket());
    m_tickets.emplace_back("full", makeFullTicket());
    for (const int count : {1000, 10, 100, 10000}) {
        m_tickets.emplace_back("overrides-" + std::to_string(count), makeOverridesTicket(count));
    }
}

void TicketBenchmark::registerAll() {
    constexpr std::size_t besidePeers = 3; // the others show how the cost grows
    for (std::size_t i = 0; i < m_tickets.size(); ++i) {
        registerImport(m_tickets[i]);
        registerExport(m_tickets[i]);
        if (i < besidePeers) {
            registerLibxml2(m_tickets[i]);
        }
    }
}

void TicketBenchmark::registerImport(const Ticket& ticket) {
    const std::string name = "import/" + ticket.name;
    add(name + "/zent", ticket.xml, [&] { m_importing.importTicket(ticket.xml); });
    add(name + "/xerces-tree", ticket.xml, [&] { m_xerces.parseToTree(ticket.xml); });
    add(name + "/xerces-events", ticket.xml, [&] { m_xerces.parseToEvents(ticket.xml); });
}

void TicketBenchmark::registerExport(Ticket& ticket) {
    const std::string name = "export/" + ticket.name;
    add(name + "/zent", ticket.xml,
        [&] { benchmark::DoNotOptimize(ticket.session.exportTicket().data()); });
    add(name + "/xerces-pieces", ticket.xml,
        [&] { benchmark::DoNotOptimize(ticket.pieces.writePieces().data()); });
    add(name + "/xerces-whole", ticket.xml,
        [&] { benchmark::DoNotOptimize(ticket.pieces.writeWhole().data()); });
}

void TicketBenchmark::registerLibxml2(const Ticket& ticket) {
    const std::string& xml = ticket.xml;
    add("import/" + ticket.name + "/libxml2", xml, [&] { m_libxml2.parse(xml); });
    add("import/" + ticket.name + "/libxml2-compiled", xml,
        [&] { m_libxml2.parseWithCompiledDtd(xml); });
    add("export/" + ticket.name + "/libxml2", xml,
        [document = std::make_shared<Libxml2Peer::Document>(m_libxml2.parse(xml))] {
        benchmark::DoNotOptimize(Libxml2Peer::write(*document));
    });
}

} // namespace zent::bench
