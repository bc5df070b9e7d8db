#include "ocore/Repair/SettingsProblemFixer.h"

namespace zent {

namespace {

bool isRepairedBefore(const SettingsProblem& a, const SettingsProblem& b) {
    return a.getKind() < b.getKind();
}

} // namespace

void SettingsProblemFixer::fix(SettingsProblemList& problems) {
    AttrNodeList* const ticket = problems.getTicket();
    if (ticket == nullptr) {
        return;
    }
    problems.sort(isRepairedBefore);
    ticket->resetCursor();
    while (problems.hasMoreSettingsProblems()) {
        SettingsProblem& problem = problems.getNextSettingsProblem();
        if (!m_removed.contains(problem.getContext().getNode())) {
            problem.fix(m_defaults, m_removed);
        }
    }
    ticket->resetCursor();
    ticket->removeEmptyLists();
}

} // namespace zent
