// Event counters, states of relays and binary inputs, measures on the display.
#ifndef TALUX_CATALOGUE_SIGNALS_H
#define TALUX_CATALOGUE_SIGNALS_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

inline constexpr ParameterRow kSignals[] = {
    numbered(0, 4, runtime(shortNumber(7000, "EvCnt_qu2_c", {.min = 0, .max = 65535}))),
    runtime(shortNumber(7005, "EvCnt_qu2", {.min = 0, .max = 65535})),
    numbered(1, 8, runtime(number(6002, "REL"))),
    numbered(1, 6, runtime(number(6010, "BE"))),
    numbered(1, 13, runtime(number(6016, "MW_meas_disp"))),
};

} // namespace talux::catalogue

#endif
