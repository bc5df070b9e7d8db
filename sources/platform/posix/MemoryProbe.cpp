#include "platform/MemoryProbe.h"

#include <cerrno>
#include <cstdint>

#include <linux/futex.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace zent::platform {

namespace {

/// Asks the kernel to add zero, atomically, to the word: it refuses with EFAULT where a write would
/// fault, and otherwise changes nothing. The call's other duty, waking threads that wait on two
/// words, finds nobody: the first word is ours alone, and whoever waits on the second must bear
/// being woken for no reason, as with any futex.
bool isWritableWord(std::uintptr_t address) noexcept {
    static std::uint32_t nobodyWaits = 0;
    constexpr unsigned addZero = (FUTEX_OP_ADD << 28) | (FUTEX_OP_CMP_LT << 24) | 0x800;
    const int savedErrno = errno;
    const long result = syscall(SYS_futex, &nobodyWaits, FUTEX_WAKE_OP | FUTEX_PRIVATE_FLAG, 0,
                                nullptr, address, addZero);
    const bool isWritable = result >= 0 || errno != EFAULT;
    errno = savedErrno;
    return isWritable;
}

} // namespace

bool isWritableMemory(const void* address, std::size_t length) noexcept {
    static const auto pageSize = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    const auto first = reinterpret_cast<std::uintptr_t>(address);
    if (first == 0 || first + length < first) {
        return false;
    }
    // All of a page has the same rights, so that one aligned word in it is enough.
    const std::uintptr_t end = first + length;
    for (std::uintptr_t place = first & ~std::uintptr_t{3}; place < end;
         place = (place & ~(pageSize - 1)) + pageSize) {
        if (!isWritableWord(place)) {
            return false;
        }
        if (place > UINTPTR_MAX - pageSize) {
            return true;
        }
    }
    return true;
}

} // namespace zent::platform
