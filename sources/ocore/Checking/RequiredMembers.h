#pragma once

#include "ocore/FeatureSettings/FeatureNumber.h"

namespace zent {

/// The feature that a collection makes no sense without; TJTF_ANY if there is none. Nothing is
/// required at the top of a ticket, nor in a page-level entry: what isn't said there is up to the
/// printer, or follows the job.
FeatureEnum getRequiredMember(FeatureEnum collection);

} // namespace zent
