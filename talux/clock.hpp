// Elapsed time, whatever the clock is set to.
#ifndef TALUX_CLOCK_HPP
#define TALUX_CLOCK_HPP

#include <cstdint>
#include <ctime>

namespace talux::detail {

inline std::int64_t monotonic() { // in nanoseconds
    timespec time;
    clock_gettime(CLOCK_MONOTONIC, &time);
    return std::int64_t{time.tv_sec} * 1000000000 + time.tv_nsec;
}

// A signal may end it sooner.
inline void sleepFor(std::int64_t nanoseconds) {
    const timespec time{static_cast<std::time_t>(nanoseconds / 1000000000),
                        static_cast<long>(nanoseconds % 1000000000)};
    nanosleep(&time, nullptr);
}

} // namespace talux::detail

#endif
