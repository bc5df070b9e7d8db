#pragma once

#include <memory>
#include <vector>

#include "ocore/Checking/SettingsProblem.h"

namespace zent {

/// The problems of one ticket, in the order in which they were found, with a cursor. It lives as
/// long as one check, and points into the ticket.
class SettingsProblemList {
public:
    using Order = bool (*)(const SettingsProblem& a, const SettingsProblem& b);

    SettingsProblemList() = default;
    /// Copies are deep, and begin with the cursor at the beginning.
    SettingsProblemList(const SettingsProblemList& other);
    SettingsProblemList& operator=(const SettingsProblemList& other);
    SettingsProblemList(SettingsProblemList&&) = default;
    SettingsProblemList& operator=(SettingsProblemList&&) = default;
    virtual ~SettingsProblemList() = default;

    /// Puts those first that the order calls less; equal ones stay as they are. Resets the cursor.
    virtual void sort(Order isLess);

    /// Adds a clone.
    void addProblem(const SettingsProblem& problem) { addProblem(problem.clone()); }
    void addProblem(std::unique_ptr<SettingsProblem> problem);
    bool isEmpty() const { return m_problems.empty(); }
    std::size_t getCount() const { return m_problems.size(); }
    const SettingsProblem& getProblem(std::size_t index) const { return *m_problems[index]; }

    void resetCursor() { m_cursor = 0; }
    bool hasMoreSettingsProblems() const { return m_cursor < m_problems.size(); }
    /// The problem at the cursor, which moves on; raises NodeAccessOutOfBoundsException at the end.
    SettingsProblem& getNextSettingsProblem();

    /// The ticket that was checked; null before a check.
    AttrNodeList* getTicket() const { return m_ticket; }
    void setTicket(AttrNodeList* ticket) { m_ticket = ticket; }

private:
    std::vector<std::unique_ptr<SettingsProblem>> m_problems;
    std::size_t m_cursor = 0;
    AttrNodeList* m_ticket = nullptr;
};

} // namespace zent
