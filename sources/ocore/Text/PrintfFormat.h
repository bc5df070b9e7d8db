#pragma once

#include <string_view>

#include "ocore/Text/FormatArgument.h"

namespace zent {

class FormatOutput;

/// Formats in the manner of printf. What isn't a specifier, and a specifier whose argument is
/// missing or of a type that makes no sense, stands as written.
void formatPrintf(std::u16string_view format, FormatArguments arguments, FormatOutput& output);

} // namespace zent
