#pragma once

#include <string>
#include <string_view>

namespace zent::platform {

/// Half of a surrogate pair becomes U+FFFD.
std::string toUtf8(std::u16string_view wide);
/// What isn't UTF-8 becomes U+FFFD, one for each piece that could have begun a character.
std::u16string fromUtf8(std::string_view narrow);
/// As much of a text as is UTF-8; the rest stays.
std::u16string takeUtf8(std::string_view& narrow);

} // namespace zent::platform
