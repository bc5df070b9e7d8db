#pragma once

#include <cstdint>

#include "zent27.h"

namespace zent {

/// The numbers that exported calls return; the public header names them (ZENT_OK and so on).
using ResultCode = std::uint32_t;

} // namespace zent
