#pragma once

#include <string>
#include <string_view>

namespace zent::platform {

/// Converts to UTF-8; half of a surrogate pair becomes U+FFFD.
std::string toUtf8(std::u16string_view wide);
/// Converts from UTF-8. Bytes that aren't become U+FFFD, one for each piece that could have begun a
/// character.
std::u16string fromUtf8(std::string_view narrow);
/// Converts as much of a text as is UTF-8, and takes it off the text; the rest stays.
std::u16string takeUtf8(std::string_view& narrow);

} // namespace zent::platform
