#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Utf8.h"
#include "zent27.h"

namespace jobticket {

/// Text as the exported calls take it.
using ZentText = std::basic_string<ZentChar>;

/// UTF-8 is what the program reads and prints on every system, whatever the locale.
using zent::platform::toUtf8;
/// Raises ProgramError (usage) for text that isn't UTF-8.
std::u16string fromUtf8(std::string_view text);

/// Units are copied as they are: ZentChar is 16 bits wide everywhere.
ZentText toZent(std::u16string_view text);
std::u16string fromZent(const ZentText& text);

/// UTF-8 for one line of a listing: control characters, which could break the line or steer a
/// terminal, are shown as "\n", "\t" or "\x1b".
std::string toPrintable(std::u16string_view text);
/// The same for a text in UTF-8; bytes that aren't are shown as control characters are.
std::string toPrintable(std::string_view text);

/// The same for a message on one line: its line end is removed, and one that is too long is cut
/// after a sentence or word.
std::string toLine(std::u16string_view message);

/// Cuts UTF-8 text to so many UTF-16 units; a text that is cut ends in "...".
std::string shorten(const std::string& text, std::size_t length);

/// An argument in quotation marks for a message, printable.
std::string inQuotes(std::string_view argument);

/// Compares texts, ASCII letters without regard to case.
bool equalsIgnoringCase(std::string_view a, std::string_view b);
/// Whether the text holds another, ASCII letters compared without regard to case.
bool containsIgnoringCase(std::string_view text, std::string_view part);

/// The name of the list that a text is meant for, maybe: one that begins with it, else one that it
/// is a part of, else the one that comes closest. Empty if none does; none does to a number.
std::string findNearest(std::string_view text, const std::vector<std::string>& names);

} // namespace jobticket
