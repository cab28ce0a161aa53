// Binary inputs, user functions, relays and LEDs.
#ifndef TALUX_CATALOGUE_BINARY_IO_H
#define TALUX_CATALOGUE_BINARY_IO_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

inline constexpr ParameterRow kBinaryIO[] = {
    choice(10060, "BEpol1", {.like = kInputPolarity}),
    decimal(2134, "BE_knuV_1", {.def = 0.1618}),
    decimal(2135, "BE_Offset_1"), // V
    decimal(2136, "BE_DC_on_1", {.def = 40, .min = 18, .max = 300}),
    decimal(2137, "BE_DC_off_1", {.def = 30, .min = 18, .max = 300}),
    decimal(2138, "BE_AC_on_1", {.def = 40, .min = 18, .max = 300}),
    decimal(2139, "BE_AC_off_1", {.def = 30, .min = 18, .max = 300}),
    choice(10061, "BEpol2", {.like = kInputPolarity}),
    decimal(2140, "BE_knuV_2", {.def = 0.1618}),
    decimal(2141, "BE_Offset_2"), // V
    decimal(2142, "BE_DC_on_2", {.def = 40, .min = 18, .max = 300}),
    decimal(2143, "BE_DC_off_2", {.def = 30, .min = 18, .max = 300}),
    decimal(2144, "BE_AC_on_2", {.def = 40, .min = 18, .max = 300}),
    decimal(2145, "BE_AC_off_2", {.def = 30, .min = 18, .max = 300}),
    numbered(3, 6, choice(10062, "BEpol", {.like = kInputPolarity})),
    numbered(1, 16, choice(10066, "BEFassign", {.like = kInputFunction})),
    numbered(1, 8, text(9033, "uBAF", 128)),

    choice(10082, "BAassign1", {.like = kOutputFunction, .def = 3}),
    choice(10083, "BApol1", {.like = kOutputPolarity}),
    choice(10084, "BAassign2", {.like = kOutputFunction, .def = 1}),
    choice(10085, "BApol2", {.like = kOutputPolarity}),
    choice(10086, "BAassign3", {.like = kOutputFunction, .def = 26}),
    choice(10087, "BApol3", {.like = kOutputPolarity}),
    choice(10088, "BAassign4", {.like = kOutputFunction, .def = 27}),
    choice(10089, "BApol4", {.like = kOutputPolarity}),
    choice(10090, "BAassign5", {.like = kOutputFunction, .def = 1}),
    choice(10091, "BApol5", {.like = kOutputPolarity}),
    choice(10092, "BAassign6", {.like = kOutputFunction, .def = 1}),
    choice(10093, "BApol6", {.like = kOutputPolarity}),
    choice(10094, "BAassign7", {.like = kOutputFunction, .def = 1}),
    choice(10095, "BApol7", {.like = kOutputPolarity}),
    choice(10096, "BAassign8", {.like = kOutputFunction, .def = 1}),
    choice(10097, "BApol8", {.like = kOutputPolarity}),

    choice(10098, "LEDassign1", {.like = kOutputFunction, .def = 18}),
    choice(10099, "LEDpol1", {.choices = 2}),
    choice(10100, "LEDassign2", {.like = kOutputFunction, .def = 5}),
    choice(10101, "LEDpol2", {.choices = 2}),
    choice(10102, "LEDassign3", {.like = kOutputFunction, .def = 19}),
    choice(10103, "LEDpol3", {.choices = 2}),
    choice(10104, "LEDassign4", {.like = kOutputFunction, .def = 6}),
    choice(10105, "LEDpol4", {.choices = 2}),
    choice(10106, "LEDassign5", {.like = kOutputFunction, .def = 20}),
    choice(10107, "LEDpol5", {.choices = 2}),
    choice(10108, "LEDassign6", {.like = kOutputFunction, .def = 7}),
    choice(10109, "LEDpol6", {.choices = 2}),
    choice(10110, "LEDassign7", {.like = kOutputFunction, .def = 16}),
    choice(10111, "LEDpol7", {.choices = 2}),
    choice(10112, "LEDassign8", {.like = kOutputFunction, .def = 16}),
    choice(10113, "LEDpol8", {.choices = 2, .def = 2}),
    choice(10114, "LEDassign9", {.like = kOutputFunction, .def = 1}),
    choice(10115, "LEDpol9", {.choices = 2}),
    choice(10116, "LEDassign10", {.like = kOutputFunction, .def = 1}),
    choice(10117, "LEDpol10", {.choices = 2}),
    flag(8073, "log_LED"),
};

} // namespace talux::catalogue

#endif
