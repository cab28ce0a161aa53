// Setting the date or the time of the system clock.
#ifndef TALUX_KEPL_CLOCK_H
#define TALUX_KEPL_CLOCK_H

#include <ctime>

#include "ParamSystem/dictionary/Types.h"

namespace talux::kepl {

/*
 * The moment at which the local clock shows this date (Nature::date: year, month, day) or this time of day
 * (Nature::time: hour, minute, second), the other half as it is now. False when the clock has no such
 * moment.
 */
bool clockSetTo(const VarLong (&numbers)[3], Nature half, std::time_t& seconds);

} // namespace talux::kepl

#endif
