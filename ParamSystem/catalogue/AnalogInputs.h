// Voltage and current inputs: assignment, transformer ratios, corrections, calibration. Channel 0 is the
// residual one.
#ifndef TALUX_CATALOGUE_ANALOG_INPUTS_H
#define TALUX_CATALOGUE_ANALOG_INPUTS_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

inline constexpr ParameterRow kAnalogInputs[] = {
    choice(10043, "frequency", {.choices = 2, .min = 1}),
    flag(8066, "freq_U0_active"),
    flag(8067, "freq_U1_active", kOn),
    flag(8068, "freq_U2_active", kOn),
    flag(8069, "freq_U3_active", kOn),
    number(6972, "f50_sync"),
    decimal(2092, "U12", {.def = 20000, .min = 10, .max = 900000}),
    choice(10044, "Uassign1", {.choices = 5, .min = 1, .def = 3}),
    decimal(2093, "knu1", {.def = 200, .min = 0.1, .max = 90000}),
    decimal(2094, "U1_sek_ref", {.def = 100}),
    decimal(2095, "knuV1", {.def = 201, .min = 0.001, .max = 90000}),
    decimal(2096, "phi_corr_U1", {.def = 0, .min = -7, .max = 7, .step = 0.1}),
    choice(10045, "Upol1", {.choices = 2, .min = 1}),
    choice(10046, "Uassign2", {.choices = 5, .min = 1, .def = 4}),
    decimal(2097, "knu2", {.def = 200, .min = 0.1, .max = 90000}),
    decimal(2098, "U2_sek_ref", {.def = 100}),
    decimal(2099, "knuV2", {.def = 201, .min = 0.001, .max = 90000}),
    decimal(2100, "phi_corr_U2", {.def = 0, .min = -7, .max = 7, .step = 0.1}),
    choice(10047, "Upol2", {.choices = 2, .min = 1}),
    choice(10048, "Uassign3", {.choices = 5, .min = 1, .def = 5}),
    decimal(2101, "knu3", {.def = 200, .min = 0.1, .max = 90000}),
    decimal(2102, "U3_sek_ref", {.def = 100}),
    decimal(2103, "knuV3", {.def = 201, .min = 0.001, .max = 90000}),
    decimal(2104, "phi_corr_U3", {.def = 0, .min = -7, .max = 7, .step = 0.1}),
    choice(10049, "Upol3", {.choices = 2, .min = 1}),
    choice(10050, "Uassign0", {.choices = 5, .min = 1, .def = 2}),
    decimal(2105, "knu0", {.def = 115, .min = 0.1, .max = 90000}),
    decimal(2106, "U0_sek_ref", {.def = 100}),
    decimal(2107, "knuV0", {.def = 201, .min = 0.001, .max = 90000}),
    decimal(2108, "phi_corr_U0", {.def = 0, .min = -7, .max = 7, .step = 0.1}),
    choice(10051, "Upol0", {.choices = 2, .min = 1}),
    flag(8070, "Uen_calc"),

    decimal(2109, "calib_U12_mess", {.def = 20, .min = 0.05, .max = 120, .step = 0.05}), // kV
    runtime(flag(8071, "calib_start")),
    command(19006, "StartCalibration"),
    runtime(number(6973, "calib_confirm")),
    decimal(2110, "calib_U12_soll", {.def = 100, .min = 60, .max = 140}), // percent
    decimal(2111, "calib_U12_min", {.def = 10, .min = 3, .max = 95}),
    decimal(2112, "calib_U12_max", {.def = 150, .min = 100, .max = 300}),
    runtime(decimal(2113, "calib_U1e_new", {.min = 10, .max = 120.8})),
    runtime(decimal(2114, "calib_U2e_new", {.min = 10, .max = 120.8})),
    runtime(decimal(2115, "calib_U3e_new", {.min = 10, .max = 120.8})),

    decimal(2116, "U_sec_valid", {.def = 1, .min = 0.1, .max = 10}),
    choice(10052, "Iassign1", {.choices = 5, .min = 0, .def = 3}),
    decimal(2117, "kni1", {.like = kCtRatio, .def = 100, .min = 0.1, .max = 90000}),
    decimal(2118, "I1_sek_ref", {.def = 1}),
    decimal(2119, "kniV1", {.def = 0.7722, .min = 0.001, .max = 90000}),
    decimal(2120, "phi_corr_I1", {.def = 0, .min = -7, .max = 7, .step = 0.1}),
    choice(10053, "Ipol1", {.choices = 2, .min = 1}),
    choice(10054, "Iassign2", {.choices = 5, .min = 0, .def = 4}),
    decimal(2121, "kni2", {.like = kCtRatio, .def = 100, .min = 0.1, .max = 90000}),
    decimal(2122, "I2_sek_ref", {.def = 1}),
    decimal(2123, "kniV2", {.def = 0.7722, .min = 0.001, .max = 90000}),
    decimal(2124, "phi_corr_I2", {.def = 0, .min = -7, .max = 7, .step = 0.1}),
    choice(10055, "Ipol2", {.choices = 2, .min = 1}),
    choice(10056, "Iassign3", {.choices = 5, .min = 0, .def = 5}),
    decimal(2125, "kni3", {.like = kCtRatio, .def = 100, .min = 0.1, .max = 90000}),
    decimal(2126, "I3_sek_ref", {.def = 1}),
    decimal(2127, "kniV3", {.def = 0.7722, .min = 0.001, .max = 90000}),
    decimal(2128, "phi_corr_I3", {.def = 0, .min = -7, .max = 7, .step = 0.1}),
    choice(10057, "Ipol3", {.choices = 2, .min = 1}),
    choice(10058, "Iassign0", {.choices = 5, .min = 0, .def = 2}),
    decimal(2129, "kni0", {.like = kCtRatio, .def = 100, .min = 0.1, .max = 90000}),
    decimal(2130, "I0_sek_ref", {.def = 1}),
    decimal(2131, "kniV0", {.def = 0.7722, .min = 0.001, .max = 90000}),
    decimal(2132, "phi_corr_I0", {.def = 0, .min = -7, .max = 7, .step = 0.1}),
    choice(10059, "Ipol0", {.choices = 2, .min = 1}),
    flag(8072, "3Io_calc"),
    decimal(2133, "I_sec_valid", {.def = 0.001, .min = 0.001, .max = 0.01}),
};

} // namespace talux::catalogue

#endif
