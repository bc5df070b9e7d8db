#pragma once

#include "ocore/Capabilities/Capabilities.h"
#include "ocore/Repair/ProblemReporter.h"

namespace zent {

/// Checks a ticket against a printer and, if the reporter agrees, repairs it by the printer's
/// default settings. `hadProblems` tells what was found. False if the user refused the repair: the
/// ticket, as it came, isn't to be used then. Where nobody is asked, nobody refuses.
bool applyCapabilitiesToJobTicket(const Capabilities& capabilities, Settings& ticket,
                                  const Settings& defaults, bool& hadProblems,
                                  const ProblemReporter& reporter);

} // namespace zent
