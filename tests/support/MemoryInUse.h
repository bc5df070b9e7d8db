#pragma once

#include <cstdint>
#include <fstream>
#include <string>

namespace zent::test {

/// What the process has of the machine's memory, in KiB. 0 where the system doesn't tell, and under
/// a sanitizer, which keeps what is released for a while.
inline std::int64_t readMemoryInUse() {
    std::int64_t size = 0;
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word && word != "VmRSS:") {
    }
    status >> size;
#endif
    return size;
}

} // namespace zent::test
