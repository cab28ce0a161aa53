// Measures on the display, labels of the LEDs.
#ifndef TALUX_TEXTS_DISPLAY_H
#define TALUX_TEXTS_DISPLAY_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kDisplay[] = {
    value("meas_disp{1..10}", {"Messwertanzeige {n}", "Measure display {n}"},
          {"Messgröße an Anzeigeposition {n}", "Measure shown at display position {n}"}),
};

} // namespace talux::texts

#endif
