#pragma once

#include <cstddef>

namespace zent::platform {

/// Whether all of an extent is mapped and writable. A null address isn't. No signal is raised or
/// caught, and nothing is changed. On Windows the extent's first byte in each page is rewritten
/// with what it holds, so no other thread may change those bytes meanwhile; elsewhere any may.
bool isWritableMemory(const void* address, std::size_t length) noexcept;

} // namespace zent::platform
