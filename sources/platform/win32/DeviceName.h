#pragma once

#include <string_view>

namespace zent::platform {

/// Whether the system would open a device where a path names a file: "COM1" in any folder, with any
/// extension, and with spaces or dots after it. Serial ports hang up and consoles wait, so that no
/// path from outside may lead to one. Which names a system heeds differs with its version; all of
/// them count.
bool isDeviceName(std::u16string_view path);

} // namespace zent::platform
