// What the display shows at its ten positions, and the labels of the LEDs.
#ifndef TALUX_TEXTS_DISPLAY_H
#define TALUX_TEXTS_DISPLAY_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kDisplay[] = {
    value("meas_disp{1..10}", {"Anzeigeposition {n}", "Display position {n}"},
          {"Messgröße, die Position {n} der Messwertanzeige zeigt",
           "Measured quantity shown at position {n} of the measurement display"}),
    value("LED{1..4}_txt", {"Beschriftung LED {n}", "LED {n} label"},
          {"Text neben LED {n} auf der Anzeige, höchstens fünf Zeichen",
           "Text beside LED {n} on the display, at most five characters"}),
};

} // namespace talux::texts

#endif
