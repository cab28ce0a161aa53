// Setting the date or the time of the system clock.
#ifndef TALUX_KEPL_CLOCK_H
#define TALUX_KEPL_CLOCK_H

#include <ctime>

namespace talux::kepl {

/*
 * The moment that the local clock shows after its date (kTypeSysDate: year, month, day) or its time of day
 * (kTypeSysTime: hour, minute, second) is set; the other half stays as it is now. Numbers may stand in
 * double quotes. False without three numbers, and when the clock has no such moment.
 */
bool clockFrom(char* text, int type, std::time_t& seconds);

} // namespace talux::kepl

#endif
