#include "platform/MemoryProbe.h"

#include <windows.h>

namespace zent::platform {

bool isWritableMemory(const void* address, std::size_t length) noexcept {
    return address != nullptr && IsBadWritePtr(const_cast<void*>(address), length) == FALSE;
}

} // namespace zent::platform
