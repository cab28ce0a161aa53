#include "ParamSystem/kepl/Clock.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "ParamSystem/os/Os.h"

namespace talux::kepl {

namespace {

// number - start without overflow: the broken-down time counts years from 1900 and months from 0.
int countedFrom(int start, VarLong number) {
    using Limits = std::numeric_limits<int>;
    const std::int64_t counted = std::int64_t{number} - start;
    return static_cast<int>(std::clamp<std::int64_t>(counted, Limits::min(), Limits::max()));
}

} // namespace

bool clockSetTo(const VarLong (&numbers)[3], Nature half, std::time_t& seconds) {
    std::tm time{};
    if (!os::localTime(time)) return false;
    if (half == Nature::date) {
        time.tm_year = countedFrom(1900, numbers[0]);
        time.tm_mon = countedFrom(1, numbers[1]);
        time.tm_mday = numbers[2];
    } else {
        time.tm_hour = numbers[0];
        time.tm_min = numbers[1];
        time.tm_sec = numbers[2];
    }
    time.tm_isdst = -1; // determined again, so that the time of day stays
    seconds = std::mktime(&time);
    return seconds != std::time_t{-1};
}

} // namespace talux::kepl
