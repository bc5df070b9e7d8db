#pragma once

#include <string>

#include "ocore/Checking/SettingsProblemList.h"

namespace zent::test {

/// The problems of a list, such as "-copies *finishings[2] 0..30:job-name _media-color ?form-name":
/// an attribute that goes, a value, a range, blanks, a feature that is missing, each with its path.
std::string textOfProblems(const SettingsProblemList& problems);

} // namespace zent::test
