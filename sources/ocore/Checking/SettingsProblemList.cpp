#include "ocore/Checking/SettingsProblemList.h"

#include <algorithm>

#include "ocore/Faults/Exceptions.h"

namespace zent {

SettingsProblemList::SettingsProblemList(const SettingsProblemList& other)
    : m_ticket(other.m_ticket) {
    m_problems.reserve(other.m_problems.size());
    for (const auto& problem : other.m_problems) {
        m_problems.push_back(problem->clone());
    }
}

SettingsProblemList& SettingsProblemList::operator=(const SettingsProblemList& other) {
    if (this != &other) {
        *this = SettingsProblemList(other);
    }
    return *this;
}

void SettingsProblemList::addProblem(std::unique_ptr<SettingsProblem> problem) {
    m_problems.push_back(std::move(problem));
}

void SettingsProblemList::sort(Order isLess) {
    std::ranges::stable_sort(m_problems,
                             [isLess](const auto& a, const auto& b) { return isLess(*a, *b); });
    resetCursor();
}

SettingsProblem& SettingsProblemList::getNextSettingsProblem() {
    if (!hasMoreSettingsProblems()) {
        Raise<NodeAccessOutOfBoundsException>()(
            "SettingsProblemList::getNextSettingsProblem(): No more SettingsProblems to get. "
            "Caller failed to test with hasMoreSettingsProblems() first!\r\n");
    }
    return *m_problems[m_cursor++];
}

} // namespace zent
