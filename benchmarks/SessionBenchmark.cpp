#include "SessionBenchmark.h"

#include <benchmark/benchmark.h>

#include "FirstSessions.h"
#include "TicketSession.h"
#include "ocore/Capabilities/Capabilities.h"
#include "ocore/Compress/CompressedBuffer.h"
#include "support/ScratchUser.h"

namespace zent::bench {

namespace {

constexpr std::uint32_t model = 1;
constexpr std::uint32_t pdl = 1;
constexpr std::uint32_t form = ZENT_INSTRUCTIONS_XML;

template <typename Work>
void add(const char* name, Work work) {
    benchmark::RegisterBenchmark(name, [work](benchmark::State& state) {
        for ([[maybe_unused]] auto each : state) {
            work();
        }
    });
}

void storePreferences() {
    const TicketSession session;
    require(fnSetPreferenceBoolValue(session.session(), u"JOB_NAME_PREFERENCE", 1));
    require(fnSetPreferenceNumberValue(session.session(), u"TOOL_BAR_PREFERENCE", 1));
    require(fnSetPreferenceStringValue(session.session(), u"PREFERRED_JOB_TICKET", u"ticket"));
}

/// Each iteration is a process of its own.
void addFirstSessions(const char* name, double FirstSessions::*which) {
    constexpr benchmark::IterationCount processes = 5;
    benchmark::RegisterBenchmark(
        name,
        [which](benchmark::State& state) {
        for ([[maybe_unused]] auto each : state) {
            state.SetIterationTime(measureFirstSessions().*which);
        }
        })
        ->UseManualTime()
        ->Iterations(processes);
}

} // namespace

SessionBenchmark::SessionBenchmark() : m_model(model, pdl) {
    const ResourceData resource = m_library.loadRawData(m_model.getCapabilityResource(form));
    const ByteBuffer& stream = resource.getBytes();
    m_stream = {static_cast<const char*>(static_cast<const void*>(stream.data())), stream.size()};
    ByteBuffer document;
    CompressedBuffer::uncompressBuffer(stream, document);
    m_documentSize = document.size();
}

void SessionBenchmark::registerAll() {
    registerOpening();
    registerFirstSessions();
    registerCapabilities();
}

void SessionBenchmark::registerOpening() {
    add("session/open", [] { openAndClose(); });
    benchmark::RegisterBenchmark("session/open-stored", [](benchmark::State& state) {
        const test::ScratchUser user;
        storePreferences();
        for ([[maybe_unused]] auto each : state) {
            openAndClose();
        }
    });
}

void SessionBenchmark::registerFirstSessions() {
    addFirstSessions("session/first", &FirstSessions::first);
    addFirstSessions("session/second", &FirstSessions::second);
}

void SessionBenchmark::registerCapabilities() {
    add("capabilities/zent", [this] { const Capabilities loaded(m_model, form); });
    add("capabilities/xerces-tree",
        [this] { m_xerces.parseToTree(m_inflater.inflate(m_stream, m_documentSize)); });
}

} // namespace zent::bench
