#pragma once

#include <vector>

#include "plugin_ui/Observer.h"

namespace zent {

/// Tells its observers that it has changed. They are never detached: each subject belongs to the
/// dialog of its observers, or to the observer itself.
class ObserverSubject {
public:
    ObserverSubject();
    virtual ~ObserverSubject() = default;
    ObserverSubject(const ObserverSubject&) = delete;
    ObserverSubject& operator=(const ObserverSubject&) = delete;

    /// An observer that is attached already stays where it is: one that attaches itself at each
    /// start of a dialog hears of a change once.
    void attach(Observer& observer);
    /// Observers hear in the order in which they were attached.
    void notifyObservers();

    /// By which an observer tells its subjects apart. The numbers come again after 65,536 others.
    std::uint16_t getSubjectId() const { return m_subjectId; }

private:
    std::vector<Observer*> m_observers;
    std::uint16_t m_subjectId;
};

} // namespace zent
