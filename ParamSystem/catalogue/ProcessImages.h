// Process images of inputs, outputs and measures, those of the script server and of the Modbus slaves.
#ifndef TALUX_CATALOGUE_PROCESS_IMAGES_H
#define TALUX_CATALOGUE_PROCESS_IMAGES_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

// One line per parameter.
// clang-format off
inline constexpr ParameterRow kProcessImages[] = {
    indexed(96, runtime(number(6588, "vBA"))),
    indexed(96, runtime(number(6684, "vBE"))),
    indexed(96, runtime(doubleNumber(1000, "vMWR"))),
    indexed(96, runtime(doubleNumber(1096, "vMWW"))),
    indexed(96, runtime(number(6780, "SLvBA"))),
    indexed(96, runtime(number(6876, "SLvBE"))),
    indexed(96, runtime(doubleNumber(1192, "SLvMWR"))),
    indexed(96, runtime(doubleNumber(1288, "SLvMWW"))),
    runtime(text(9032, "lua_modbus", kNoLength)),
};
// clang-format on

} // namespace talux::catalogue

#endif
