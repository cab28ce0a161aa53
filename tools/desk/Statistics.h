// Largest, smallest and mean values of an interval, as StatRecord_c0 holds them.
#ifndef TALUX_DESK_STATISTICS_H
#define TALUX_DESK_STATISTICS_H

#include "tools/desk/Meter.h"

namespace desk {

class Statistics {
public:
    // Takes the values of a cycle. True when the interval is over, `stat_intervall` minutes; the record then
    // holds it, and the next one begins.
    bool add(const Values& values, int transients, const talux::Settings& settings);

    [[nodiscard]] const talux::StatRecord_c0& record() const { return complete; }

private:
    talux::StatRecord_c0 running{}, complete{};
    int cycles = 0, transientsBefore = 0;
    double seconds = 0;
};

} // namespace desk

#endif
