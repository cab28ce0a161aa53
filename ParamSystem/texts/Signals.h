// Relays and binary inputs, measures on the display.
#ifndef TALUX_TEXTS_SIGNALS_H
#define TALUX_TEXTS_SIGNALS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kSignals[] = {
    label("REL{1..8}", {"Zustand Relais {n}", "Relay {n} state"}),
    label("BE{1..6}", {"Zustand Binäreingang {n}", "Binary input {n} state"}),
    label("MW_meas_disp{1..13}", {"Anzeigewert {n}", "Display value {n}"}),
};

} // namespace talux::texts

#endif
