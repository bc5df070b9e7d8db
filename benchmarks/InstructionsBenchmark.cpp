#include "InstructionsBenchmark.h"

#include <stdexcept>

#include <benchmark/benchmark.h>

#include "ListWalk.h"
#include "SampleTickets.h"
#include "ZENT_API/ZENTSession.h"
#include "ocore/Printer/CreateStreamTranslator.h"
#include "ocore/Resources/Stream.h"
#include "ocore/User/User.h"

namespace zent::bench {

namespace {

std::unique_ptr<AnlToStreamTranslator> makeTranslator(const TicketSession& session) {
    ZENTSession& printer = ZENTSession::getSessionObject(session.session());
    return createStreamTranslator(printer.getCapabilities(), printer.getInstructionForm());
}

/// Changes the ticket, so that the blob has to be made anew.
void touch(const TicketSession& session) {
    require(fnSetNumberValue(session.session(), session.settings(), u"copies", 2, 0));
}

/// Registers a benchmark that runs `work`, which makes a job's instructions.
template <typename Job, typename Work>
void add(const std::string& name, const Job& job, Work work) {
    benchmark::RegisterBenchmark(name.c_str(), [work, &job](benchmark::State& state) {
        for ([[maybe_unused]] auto each : state) {
            work();
        }
        state.counters["bytes"] = static_cast<double>(job.bytes);
    });
}

/// Puts the user into the ticket that the instructions would name in any case, so that the ticket
/// alone translates to the same bytes.
void setUser(const TicketSession& session) {
    const std::u16string user(User::getLogonName().view());
    for (const auto* const name : {u"requesting-user-name", u"job-recipient-name"}) {
        require(fnSetStringValue(session.session(), session.settings(), name, user.c_str(), 0));
    }
}

} // namespace

InstructionsBenchmark::Job::Job(const Form& form, const std::string& ticketName,
                                const std::string& xml)
    : name(form.name + "/" + ticketName), session(form.printer) {
    session.importTicket(xml);
    setUser(session);
    const std::string_view state = session.exportTicket(ZENT_FORMAT_STATE);
    blob = BlobContent(state);
    list = *PersistentSettings({state.data(), state.size()}, false).toNewAttrNodeList();
    translator = makeTranslator(session);

    const std::string instructions(session.getInstructions());
    bytes = instructions.size();
    if (form.printer.form == ZENT_INSTRUCTIONS_XML) {
        document.emplace(instructions);
    } else {
        stream.emplace(instructions);
    }
    if (translate() != instructions || writeFloor() != instructions) {
        throw std::logic_error("the floor of " + name + " doesn't write the instructions");
    }
}

std::string_view InstructionsBenchmark::Job::translate() {
    translated.resize(0);
    BufferStream target(&translated);
    translator->translate(list, target);
    return {static_cast<const char*>(static_cast<const void*>(translated.data())),
            translated.size()};
}

std::string_view InstructionsBenchmark::Job::writeFloor() {
    if (document) {
        return document->writePieces();
    }
    benchmark::DoNotOptimize(walkList(list));
    return stream->write();
}

InstructionsBenchmark::InstructionsBenchmark() {
    const Form forms[] = {
        {"xml", {.model = 1, .pdl = 1, .form = ZENT_INSTRUCTIONS_XML}},
        {"stream", {.model = 17, .pdl = 1, .form = ZENT_INSTRUCTIONS_STREAM}},
    };
    for (const Form& form : forms) {
        m_jobs.emplace_back(form, "small", makeSmallTicket());
        m_jobs.emplace_back(form, "full", makeFullTicket());
        for (const int count : {10, 100, 1000, 10000}) {
            m_jobs.emplace_back(form, "overrides-" + std::to_string(count),
                                makeOverridesTicket(count));
        }
    }
}

void InstructionsBenchmark::registerAll() {
    for (Job& job : m_jobs) {
        registerInstructions(job);
        registerTranslation(job);
    }
}

void InstructionsBenchmark::registerInstructions(Job& job) {
    const std::string name = "instructions-" + job.name;
    add(name + "/zent", job,
        [&] { benchmark::DoNotOptimize(job.session.getInstructions().data()); });
    add(name + "/zent-changed", job, [&] {
        touch(job.session);
        benchmark::DoNotOptimize(job.session.getInstructions().data());
    });
    add(name + "/xerces-tree", job, [&] {
        m_xerces.parseToTree(job.blob.expandDocument(m_inflater));
        benchmark::DoNotOptimize(job.writeFloor().data());
    });
    add(name + "/xerces-events", job, [&] {
        m_xerces.parseToEvents(job.blob.expandDocument(m_inflater));
        benchmark::DoNotOptimize(job.writeFloor().data());
    });
}

void InstructionsBenchmark::registerTranslation(Job& job) {
    const std::string name = "translate-" + job.name;
    add(name + "/zent", job, [&] { benchmark::DoNotOptimize(job.translate().data()); });
    add(name + "/plain", job, [&] { benchmark::DoNotOptimize(job.writeFloor().data()); });
}

} // namespace zent::bench
