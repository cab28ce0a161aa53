#include "ParamSystem/kepl/Clock.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "ParamSystem/KEPL_Interpreter.h"
#include "ParamSystem/TALUX_Funcs.h"
#include "ParamSystem/TALUX_Params.h"
#include "ParamSystem/os/Os.h"

namespace talux::kepl {

namespace {

bool takeThreeNumbers(char* text, const char* separators, VarLong (&numbers)[3]) {
    char buffer[kKeplMaxTerm + 1];
    StringTokenizer tokenizer;
    tokenizer.SetBuffer(buffer, sizeof buffer);
    tokenizer.SetString(text, separators, false);
    return std::ranges::all_of(numbers, [&](VarLong& number) {
        const char* const token = tokenizer.nextToken();
        return token != nullptr && MakeLong(token, &number) == 1;
    });
}

// number - start without overflow: the broken-down time counts years from 1900 and months from 0.
int countedFrom(int start, VarLong number) {
    using Limits = std::numeric_limits<int>;
    const std::int64_t counted = std::int64_t{number} - start;
    return static_cast<int>(std::clamp<std::int64_t>(counted, Limits::min(), Limits::max()));
}

} // namespace

bool clockFrom(char* text, int type, std::time_t& seconds) {
    const bool isDate = type == kTypeSysDate;
    VarLong numbers[3] = {};
    std::tm time{};
    if (!takeThreeNumbers(text, isDate ? "-\"" : ":\"", numbers)) return false;
    if (!os::localTime(time)) return false;

    if (isDate) {
        time.tm_year = countedFrom(1900, numbers[0]);
        time.tm_mon = countedFrom(1, numbers[1]);
        time.tm_mday = countedFrom(0, numbers[2]);
    } else {
        time.tm_hour = countedFrom(0, numbers[0]);
        time.tm_min = countedFrom(0, numbers[1]);
        time.tm_sec = countedFrom(0, numbers[2]);
    }
    time.tm_isdst = -1; // found anew, so that the time of day stays
    seconds = std::mktime(&time);
    return seconds != std::time_t{-1};
}

} // namespace talux::kepl
