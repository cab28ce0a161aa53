// Primary and secondary values, powers, angles, harmonics, statistics maxima.
#ifndef TALUX_TEXTS_MEASUREMENTS_H
#define TALUX_TEXTS_MEASUREMENTS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kMeasurements[] = {
    value("U1_prim", {"Leiter-Erde-Spg. L1", "Voltage L1-E"},
          {"Leiter-Erde-Spannung U1 primär", "Voltage U1_primary"}, "kV"),
};

} // namespace talux::texts

#endif
