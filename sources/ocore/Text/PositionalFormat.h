#pragma once

#include <string_view>

#include "ocore/Text/FormatArgument.h"

namespace zent {

class FormatOutput;

/// Formats by numbered inserts, as message tables do:
///
/// - "%1" to "%99" inserts an argument as text, "%1!08lx!" in a printf form; a "*" in the form
///   takes its number from that argument, and the text from the next.
/// - "%n" is CR LF, "%r" CR, "%t" a tab, "%b" a space; "%0" ends the text. Any other unit behind a
///   "%" stands for itself, so "%%" is a percent sign.
/// - A line end of any kind becomes CR LF.
///
/// An insert with a form that can't be read, or doesn't fit its argument, stands as written.
/// False if an argument isn't there, or the format ends within a specifier.
bool formatPositional(std::u16string_view format, FormatArguments arguments, FormatOutput& output);

} // namespace zent
