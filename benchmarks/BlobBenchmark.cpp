#include "BlobBenchmark.h"

#include <stdexcept>
#include <utility>

#include <benchmark/benchmark.h>

#include "SampleTickets.h"
#include "ocore/Compress/PersistentSettings.h"

namespace zent::bench {

namespace {

/// Registers a benchmark that runs `work` on an outside form of a number of bytes.
template <typename Work>
void add(const std::string& name, std::size_t bytes, Work work) {
    benchmark::RegisterBenchmark(name.c_str(), [work, bytes](benchmark::State& state) {
        for ([[maybe_unused]] auto each : state) {
            work();
        }
        state.counters["bytes"] = static_cast<double>(bytes);
    });
}

/// Imports a document, and exports it as a blob.
std::string toState(TicketSession& session, const std::string& xml) {
    session.importTicket(xml);
    return std::string(session.exportTicket(ZENT_FORMAT_STATE));
}

CupsTicket toCups(const std::string& state) {
    PersistentSettings settings({state.data(), state.size()}, false);
    return CupsTicket(*settings.toNewAttrNodeList());
}

/// Changes the ticket, so that the next export writes it anew.
void touch(const TicketSession& session) {
    require(fnSetNumberValue(session.session(), session.settings(), u"copies", 2, 0));
}

} // namespace

BlobBenchmark::Blob::Blob(std::string ticketName, const std::string& xml)
    : name(std::move(ticketName)), state(toState(session, xml)), content(state),
      document(content.document()), cups(toCups(state)), messageSize(cups.write().size()) {
    message = Deflater().deflate(cups.write());
}

BlobBenchmark::BlobBenchmark() {
    m_blobs.emplace_back("small", makeSmallTicket());
    m_blobs.emplace_back("full", makeFullTicket());
    m_blobs.emplace_back("overrides-1000", makeOverridesTicket(1000));
    for (Blob& blob : m_blobs) {
        if (!blob.content.stream.starts_with(writeFloor(blob))) {
            throw std::logic_error("the floor of writing doesn't write the blob");
        }
    }
}

void BlobBenchmark::registerAll() {
    for (Blob& blob : m_blobs) {
        registerImport(blob);
        registerExport(blob);
    }
}

void BlobBenchmark::registerImport(Blob& blob) {
    const std::string name = "import-blob/" + blob.name;
    add(name + "/zent", blob.state.size(),
        [&] { m_importing.importTicket(blob.state, ZENT_FORMAT_STATE); });
    add(name + "/xerces-tree", blob.state.size(),
        [&] { m_xerces.parseToTree(blob.content.expandDocument(m_inflater)); });
    add(name + "/xerces-events", blob.state.size(),
        [&] { m_xerces.parseToEvents(blob.content.expandDocument(m_inflater)); });
    add(name + "/cups", blob.message.size(),
        [&] { CupsTicket::read(m_inflater.inflate(blob.message, blob.messageSize)); });
}

void BlobBenchmark::registerExport(Blob& blob) {
    const std::string name = "export-blob/" + blob.name;
    add(name + "/zent", blob.state.size(), [&] {
        touch(blob.session);
        benchmark::DoNotOptimize(blob.session.exportTicket(ZENT_FORMAT_STATE).data());
    });
    add(name + "/xerces-pieces", blob.state.size(),
        [&] { benchmark::DoNotOptimize(writeFloor(blob).data()); });
    add(name + "/cups", blob.message.size(),
        [&] { benchmark::DoNotOptimize(m_deflater.deflate(blob.cups.write()).data()); });
}

std::string_view BlobBenchmark::writeFloor(Blob& blob) {
    m_content.assign(blob.content.expanded, 0, StateData::size);
    m_content += blob.document.writePieces();
    return m_deflater.deflate(m_content);
}

} // namespace zent::bench
