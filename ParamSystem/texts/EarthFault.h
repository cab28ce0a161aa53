// General thresholds and priorities of the earth-fault detection.
#ifndef TALUX_TEXTS_EARTHFAULT_H
#define TALUX_TEXTS_EARTHFAULT_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kEarthFault[] = {
    value("Uearth", {"Schwelle U0", "Threshold U0"},
          {"Ansprechschwelle der Verlagerungsspannung für Erdschluss",
           "Pick-up threshold of the residual voltage for an earth fault"},
          "%"),
};

} // namespace talux::texts

#endif
