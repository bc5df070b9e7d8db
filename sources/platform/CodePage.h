#pragma once

#include <string>
#include <string_view>

namespace zent::platform {

/// Between 16-bit text and the ANSI code page (the system's own on Windows, UTF-8 elsewhere).
/// What can't be converted becomes the replacement character of the target.
std::u16string fromAnsi(std::string_view narrow);
std::string toAnsi(std::u16string_view wide);

} // namespace zent::platform
