#pragma once

#include <windows.h>

namespace zent::platform {

/// The module that this code was loaded with, as the loader gave it at process attach; null, which
/// stands for the program itself, where the library's objects are part of a program.
HMODULE getOwnModule() noexcept;

} // namespace zent::platform
