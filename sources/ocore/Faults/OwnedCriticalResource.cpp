// The record of holds serves diagnosis: where threads wait for each other it shows which resources
// each of them holds. It is on always, and therefore allocates nothing.

#include "ocore/Faults/OwnedCriticalResource.h"

#include "ocore/Faults/Trace.h"
#include "platform/KeepForever.h"
#include "platform/System.h"

namespace zent {

/// All holds, in order of taking, under a critical resource of its own, whose holds aren't
/// recorded.
struct OwnedCriticalResource::Record {
    CriticalResource guard{u"OwnedCriticalResource"};
    OwnedCriticalResource* oldest = nullptr;
    OwnedCriticalResource* newest = nullptr;
    std::size_t count = 0;

    class Entered {
    public:
        explicit Entered(Record& record) : m_guard(record.guard) { m_guard.enter(); }
        ~Entered() { m_guard.leave(); }
        Entered(const Entered&) = delete;
        Entered& operator=(const Entered&) = delete;

    private:
        CriticalResource& m_guard;
    };

    static void trace(const OwnedCriticalResource& hold) {
        trace::output(formatText("0x%lx:", hold.m_threadId) + hold.m_resource.getName());
    }

    /// Traces all holds, and then those of the thread of the one that was added.
    void traceWith(const OwnedCriticalResource& added) const {
        for (const auto* hold = oldest; hold != nullptr; hold = hold->m_newer) {
            trace(*hold);
        }
        for (const auto* hold = oldest; hold != nullptr; hold = hold->m_newer) {
            if (hold->m_threadId == added.m_threadId) {
                trace(*hold);
            }
        }
    }
};

OwnedCriticalResource::Record& OwnedCriticalResource::record() {
    static Record& holds = keepForever<Record>();
    return holds;
}

OwnedCriticalResource::OwnedCriticalResource(CriticalResource& resource, SourcePlace place)
    : m_resource(resource), m_place(place), m_threadId(platform::getCurrentThreadId()) {
    m_resource.enter();
    try {
        Record& holds = record();
        const Record::Entered entered(holds);
        link(holds);
        if (trace::isOutputEnabled()) {
            trace::location(CXString(m_place.file), m_place.line);
            holds.traceWith(*this);
        }
    } catch (...) {
        trace::output(u"Exception thrown while recording ownership of the CriticalResource.");
    }
}

OwnedCriticalResource::~OwnedCriticalResource() {
    try {
        Record& holds = record();
        const Record::Entered entered(holds);
        unlink(holds);
    } catch (...) {
        trace::output(
            u"Exception thrown while removing ownership recording of the CriticalResource.");
    }
    m_resource.leave();
}

void OwnedCriticalResource::link(Record& holds) noexcept {
    m_older = holds.newest;
    (m_older != nullptr ? m_older->m_newer : holds.oldest) = this;
    holds.newest = this;
    ++holds.count;
}

void OwnedCriticalResource::unlink(Record& holds) noexcept {
    const bool isRecorded = holds.oldest == this || m_older != nullptr;
    if (!isRecorded) {
        return;
    }
    (m_older != nullptr ? m_older->m_newer : holds.oldest) = m_newer;
    (m_newer != nullptr ? m_newer->m_older : holds.newest) = m_older;
    --holds.count;
}

std::size_t OwnedCriticalResource::getRecordedCount() {
    Record& holds = record();
    const Record::Entered entered(holds);
    return holds.count;
}

} // namespace zent
