#include "plugin_ui/ObserverSubject.h"

#include <algorithm>
#include <atomic>

namespace zent {

namespace {

/// This is atomic because dialogs of several threads make subjects.
std::atomic<std::uint32_t> subjectCount = 0;

} // namespace

ObserverSubject::ObserverSubject() : m_subjectId(static_cast<std::uint16_t>(++subjectCount)) {}

void ObserverSubject::attach(Observer& observer) {
    if (std::ranges::find(m_observers, &observer) == m_observers.end()) {
        m_observers.push_back(&observer);
    }
}

// An index is safe where an iterator isn't, since an observer may attach another.
void ObserverSubject::notifyObservers() {
    for (std::size_t i = 0; i < m_observers.size(); ++i) { // NOLINT(modernize-loop-convert)
        m_observers[i]->handleSubjectUpdate(m_subjectId);
    }
}

} // namespace zent
