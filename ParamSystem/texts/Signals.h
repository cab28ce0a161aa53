// Relays and binary inputs, measures on the display.
#ifndef TALUX_TEXTS_SIGNALS_H
#define TALUX_TEXTS_SIGNALS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kSignals[] = {
    value("REL{1..8}", {"Relais {n}", "Relay {n}"},
          {"Zustand von Ausgangsrelais {n}", "State of output relay {n}"}),
    value("BE{1..6}", {"Binäreingang {n}", "Binary input {n}"},
          {"Zustand von Binäreingang {n} nach Polarität und Schwelle",
           "State of binary input {n} after polarity and threshold"}),
    label("MW_meas_disp{1..13}", {"Anzeigewert {n}", "Display value {n}"}),
};

} // namespace talux::texts

#endif
