#pragma once

#include <cerrno>
#include <cstdint>
#include <ctime>

namespace zent::platform {

/// Sleeps for so many milliseconds, or a little longer. A signal ends the system's sleep early; by
/// sleeping until a time, not for one, the whole pause is kept however many signals come.
inline void pauseFor(std::int64_t milliseconds) {
    constexpr std::int64_t perSecond = 1'000'000'000;
    timespec end = {};
    clock_gettime(CLOCK_MONOTONIC, &end);
    const std::int64_t nanoseconds = end.tv_nsec + milliseconds * 1'000'000;
    end.tv_sec += nanoseconds / perSecond;
    end.tv_nsec = nanoseconds % perSecond;
    while (clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &end, nullptr) == EINTR) {
    }
}

} // namespace zent::platform
