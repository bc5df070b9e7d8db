#pragma once

#include <cstddef>

#include "ocore/Attributes/AttrNodeList.h"

namespace zent::bench {

/// What every program has to do that looks at a ticket: visits each node of a list, at all depths,
/// and reads its name and what it holds. Gives a number that all of that goes into.
std::size_t walkList(const AttrNodeList& list);

} // namespace zent::bench
