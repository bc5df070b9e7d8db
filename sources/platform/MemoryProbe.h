#pragma once

#include <cstddef>

namespace zent::platform {

/// Whether all of an extent is mapped and writable. A null address isn't; nothing is changed, no
/// signal is raised or caught, and other threads may use the memory meanwhile.
bool isWritableMemory(const void* address, std::size_t length) noexcept;

} // namespace zent::platform
