// Event counters, states of relays and binary inputs, measures on the display.
#ifndef TALUX_PARAMETERS_SIGNALS_H
#define TALUX_PARAMETERS_SIGNALS_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

inline constexpr Row kSignalsRows[] = {
    shortNumber(7000, "EvCnt_qu2_c{0..4}", {.min = 0, .max = 65535, .is = kRuntime}, {}),
    shortNumber(7005, "EvCnt_qu2", {.min = 0, .max = 65535, .is = kRuntime}, {}),
    number(6002, "REL{1..8}", {.is = kRuntime}, {{"Zustand Relais {n}"}, {"Relay {n} state"}}),
    number(6010, "BE{1..6}", {.is = kRuntime}, {{"Zustand Binäreingang {n}"}, {"Binary input {n} state"}}),
    number(6016, "MW_meas_disp{1..13}", {.is = kRuntime}, {{"Anzeigewert {n}"}, {"Display value {n}"}}),
};

inline constexpr Note kSignalsNotes[] = {
    warning("EvCnt_qu2_c{0..4} EvCnt_qu2 DisplayLevel cycle_cnt_low cycle_cnt_high BE_Reset_Button OVR_new "
            "OVR_BEF_enable OVR_BE_enable OVR_BE_LT_enable",
            "Teilt seine Id mit einem zweiten Parameter. Beide Namen lesen den Wert des long, und ein "
            "Schreiben ändert beide.",
            "Shares its id with a second parameter. Both names read the value of the long one, and a write "
            "changes both."),
    unknown("EvCnt_qu2_c{0..4} EvCnt_qu2", "Ereigniszähler des Verfahrens qu2, aus dem Namen gelesen.",
            "Event counter of the method qu2, read from the name."),
    unknown("I{0..3}_max_stat_c{0..4} EvCnt_qu2_c{0..4}",
            "Wofür die Klassen c0 bis c4 der Statistik stehen, ist nicht dokumentiert.",
            "What the classes c0 to c4 of the statistics stand for is not documented."),
    unknown("MW_meas_disp{1..13}", "Bedeutung und Einheit der Zahl sind nicht dokumentiert.",
            "Meaning and unit of the number are not documented."),
};

} // namespace talux::parameters

#endif
