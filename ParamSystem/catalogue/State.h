// Main screen, change flags and states that the programs of the device tell each other.
#ifndef TALUX_CATALOGUE_STATE_H
#define TALUX_CATALOGUE_STATE_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

inline constexpr ParameterRow kState[] = {
    command(19000, "MainScreenText"),
    runtime(number(6000, "ParamMagic", {.min = 0, .max = 1999999999})),
    runtime(flag(8000, "ParamChanged")),
    runtime(flag(8001, "IpParamChanged")),
    runtime(flag(8002, "SecParamChanged")),
    runtime(flag(8003, "ParamInit")),
    runtime(flag(8004, "StmParamChanged")),
    runtime(flag(8005, "MainScreen")),
    runtime(flag(8006, "LedTest")),
    runtime(flag(8007, "LedSimulation")),
    runtime(number(6001, "ADC_samples")),
};

} // namespace talux::catalogue

#endif
