// General thresholds and priorities of the earth-fault detection.
#ifndef TALUX_TEXTS_EARTHFAULT_H
#define TALUX_TEXTS_EARTHFAULT_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kEarthFault[] = {
    value("U123ok", {"Schwelle Leiter gesund", "Threshold phase ok"},
          {"Leiter-Erde-Spannung, über der ein Leiter als gesund gilt",
           "Phase voltage to earth above which a phase counts as healthy"},
          "%"),
    value("U123erd", {"Schwelle Leiter erdig", "Threshold phase earthed"},
          {"Leiter-Erde-Spannung, unter der ein Leiter als erdschlussbehaftet gilt",
           "Phase voltage to earth below which a phase counts as the faulty one"},
          "%"),
    value("Uearth", {"Schwelle Erdschluss U0", "Threshold U0"},
          {"Verlagerungsspannung, ab der ein Erdschluss gemeldet wird",
           "Residual voltage from which an earth fault is signalled"},
          "%"),
    value("Uearth_SigDel", {"Verzögerung U0>", "Delay U0>"},
          {"Zeit, die die Verlagerungsspannung anstehen muss, bevor gemeldet wird",
           "Time for which the residual voltage must persist before it is signalled"},
          "s"),
    value("Uearth_SigDur", {"Meldedauer U0>", "Signal duration U0>"},
          {"Dauer der Erdschlussmeldung; 0 = solange die Spannung ansteht",
           "Duration of the earth-fault signal; 0 = as long as the voltage persists"},
          "s"),
    value("Uearth_SigDur_LED", {"LED-Dauer U0>", "LED duration U0>"},
          {"Dauer der Anzeige durch die Leuchtdiode; 0 = solange die Spannung ansteht",
           "Duration of the indication by the LED; 0 = as long as the voltage persists"},
          "s"),
    value("prio_list_{1..10}", {"Priorität {n}", "Priority {n}"},
          {"Ortungsverfahren, dessen Richtungsentscheid an Stelle {n} zählt",
           "Detection method whose direction decision counts in place {n}"}),
};

} // namespace talux::texts

#endif
