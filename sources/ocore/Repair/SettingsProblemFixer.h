#pragma once

#include "ocore/Checking/SettingsProblemList.h"

namespace zent {

/// Repairs a ticket: takes out what the printer lacks, and puts in its defaults or what comes
/// nearest. One fixer is for one list of problems.
class SettingsProblemFixer {
public:
    /// Copies the printer's default settings.
    explicit SettingsProblemFixer(const Settings& defaults)
        : m_defaults(*defaults.getAttrNodeList()) {}

    /// Sorts the problems into the order of repair and repairs the ticket that they are about. A
    /// problem in what an earlier repair has taken out is passed over.
    void fix(SettingsProblemList& problems);

private:
    Settings m_defaults;
    RemovedNodes m_removed;
};

} // namespace zent
