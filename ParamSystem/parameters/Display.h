// What the display shows at its ten positions, and the labels of the LEDs.
#ifndef TALUX_PARAMETERS_DISPLAY_H
#define TALUX_PARAMETERS_DISPLAY_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

// Texts that several rows share.
inline constexpr Words kDisplayPosition{
    {"Anzeigeposition {n}", "Messgröße, die Position {n} der Messwertanzeige zeigt"},
    {"Display position {n}", "Measured quantity shown at position {n} of the measurement display"}};
inline constexpr Words kLEDLabel{
    {"Beschriftung LED {n}", "Text neben LED {n} auf der Anzeige, höchstens fünf Zeichen"},
    {"LED {n} label", "Text beside LED {n} on the display, at most five characters"}};

inline constexpr Row kDisplayRows[] = {
    choice(10001, "meas_disp1", {.like = kDisplayMeasure, .def = 1}, kDisplayPosition("1")),
    choice(10002, "meas_disp2", {.like = kDisplayMeasure, .def = 2}, kDisplayPosition("2")),
    choice(10003, "meas_disp3", {.like = kDisplayMeasure, .def = 3}, kDisplayPosition("3")),
    choice(10004, "meas_disp4", {.like = kDisplayMeasure, .def = 4}, kDisplayPosition("4")),
    choice(10005, "meas_disp5", {.like = kDisplayMeasure, .def = 5}, kDisplayPosition("5")),
    choice(10006, "meas_disp6", {.like = kDisplayMeasure, .def = 6}, kDisplayPosition("6")),
    choice(10007, "meas_disp7", {.like = kDisplayMeasure, .def = 7}, kDisplayPosition("7")),
    choice(10008, "meas_disp8", {.like = kDisplayMeasure, .def = 8}, kDisplayPosition("8")),
    choice(10009, "meas_disp9", {.like = kDisplayMeasure, .def = 9}, kDisplayPosition("9")),
    choice(10010, "meas_disp10", {.like = kDisplayMeasure, .def = 10}, kDisplayPosition("10")),
    text(9016, "LED1_txt", {.length = 5, .def = "L1"}, kLEDLabel("1")),
    text(9017, "LED2_txt", {.length = 5, .def = "L2"}, kLEDLabel("2")),
    text(9018, "LED3_txt", {.length = 5, .def = "L3"}, kLEDLabel("3")),
    text(9019, "LED4_txt", {.length = 5, .def = "N"}, kLEDLabel("4")),
};

} // namespace talux::parameters

#endif
