#pragma once

#include <span>
#include <vector>

#include "FeaturePath.h"
#include "Session.h"
#include "Value.h"

namespace jobticket {

/// Sets the values of a feature in place of those it has; with an index, that one alone. Raises
/// ProgramError (badValue) for an index that would leave a gap.
void setValues(Ticket& ticket, std::span<const PathStep> path, const std::vector<Value>& values);

/// Removes all values of a feature; with an index, that one alone. What isn't there is left so.
void removeValues(Ticket& ticket, std::span<const PathStep> path);

} // namespace jobticket
