// Measured and derived values, states of relays and inputs.
#ifndef TALUX_TEXTS_MEASUREMENTS_H
#define TALUX_TEXTS_MEASUREMENTS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kMeasurements[] = {
    value("REL{1..8}", {"Relais {n}", "Relay {n}"},
          {"Zustand von Ausgangsrelais {n}", "State of output relay {n}"}),
};

} // namespace talux::texts

#endif
