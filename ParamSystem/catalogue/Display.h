// What the display shows at its ten positions, and the labels of the LEDs.
#ifndef TALUX_CATALOGUE_DISPLAY_H
#define TALUX_CATALOGUE_DISPLAY_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

inline constexpr ParameterRow kDisplay[] = {
    choice(10001, "meas_disp1", {.like = kDisplayMeasure, .def = 1}),
    choice(10002, "meas_disp2", {.like = kDisplayMeasure, .def = 2}),
    choice(10003, "meas_disp3", {.like = kDisplayMeasure, .def = 3}),
    choice(10004, "meas_disp4", {.like = kDisplayMeasure, .def = 4}),
    choice(10005, "meas_disp5", {.like = kDisplayMeasure, .def = 5}),
    choice(10006, "meas_disp6", {.like = kDisplayMeasure, .def = 6}),
    choice(10007, "meas_disp7", {.like = kDisplayMeasure, .def = 7}),
    choice(10008, "meas_disp8", {.like = kDisplayMeasure, .def = 8}),
    choice(10009, "meas_disp9", {.like = kDisplayMeasure, .def = 9}),
    choice(10010, "meas_disp10", {.like = kDisplayMeasure, .def = 10}),
    text(9016, "LED1_txt", 5, "L1"),
    text(9017, "LED2_txt", 5, "L2"),
    text(9018, "LED3_txt", 5, "L3"),
    text(9019, "LED4_txt", 5, "N"),
};

} // namespace talux::catalogue

#endif
