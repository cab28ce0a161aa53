// Override values, output states, calibration results, records.
#ifndef TALUX_TEXTS_RUNTIME_H
#define TALUX_TEXTS_RUNTIME_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kRuntime[] = {
    label("OVR_time", {"Simulationszeit", "Override time"}),
};

} // namespace talux::texts

#endif
