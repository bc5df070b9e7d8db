#pragma once

#include <string>

#include "ocore/Checking/SettingsProblemList.h"

namespace zent::test {

/// The problems of a list, such as "-copies *finishings[2] 0..30:job-name _media-color ?form-name":
/// an attribute that is removed, a value, a range, spaces, a missing feature, each with its path.
std::string textOfProblems(const SettingsProblemList& problems);

} // namespace zent::test
