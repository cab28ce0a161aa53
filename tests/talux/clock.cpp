// Loaded before the C library: each look finds the clock of the day another hour ahead. A program that waits
// by it does not wait.
#include <atomic>
#include <ctime>
#include <sys/syscall.h>
#include <unistd.h>

extern "C" int clock_gettime(clockid_t clock, timespec* time) {
    static std::atomic<std::time_t> ahead;
    const long result = syscall(SYS_clock_gettime, clock, time);
    if (clock == CLOCK_REALTIME) time->tv_sec += ahead += 3600;
    return static_cast<int>(result);
}
