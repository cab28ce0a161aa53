// Run-time values: counters, override values for simulation, output words, calibration results.
#ifndef TALUX_CATALOGUE_RUNTIME_H
#define TALUX_CATALOGUE_RUNTIME_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

inline constexpr ParameterRow kRuntime[] = {
    number(6994, "max_ini_files", {.def = 15}),
    number(6995, "BA_red_cnt", {.def = 1}),
    runtime(number(6996, "rec_start")),
    runtime(number(6997, "MW_start")),
    runtime(number(6998, "BAF_LED_log")),
    runtime(number(6999, "stat_clear")),
    choice(10130, "skew_type", {.choices = 4, .def = 4}),
    flag(8179, "filt_active", kOn),
    runtime(number(7000, "cycle_cnt_low")), // 7000..7006 lie in the int block too
    runtime(number(7001, "cycle_cnt_high")),
    runtime(number(7002, "BE_Reset_Button")),
    runtime(number(7003, "OVR_new")),
    runtime(number(7004, "OVR_BEF_enable")),
    runtime(number(7005, "OVR_BE_enable")),
    runtime(number(7006, "OVR_BE_LT_enable")),
    runtime(number(7007, "OVR_BAF_enable")),
    runtime(number(7008, "OVR_BA_enable")),
    runtime(number(7009, "OVR_time")),
    runtime(number(7010, "OVR_MW_enable")),
    runtime(number(7011, "OVR_MW_time")),
    runtime(number(7012, "OVR_MW_BE_enable")),
    runtime(number(7013, "OVR_MW_BE_time")),
    indexed(8, runtime(number(7014, "OVR_BE_val"))),
    indexed(32, runtime(number(7022, "OVR_BE_LT_val"))),
    indexed(16, runtime(number(7054, "OVR_BEF_val"))),
    indexed(128, runtime(number(7070, "OVR_BAF_val"))),
    indexed(8, runtime(number(7198, "OVR_BA_val"))),
    indexed(32, runtime(decimal(2248, "OVR_MW_val"))),
    number(7206, "BAF_cnt_val_dT1", {.min = -1, .max = 100000}),
    number(7207, "BAF_cnt_val_dT2", {.min = -1, .max = 100000}),
    flag(8180, "SIGNAL_BAFs_enable", kOn),
    flag(8181, "SIGNAL_BAs_enable", kOn),
    number(7208, "LOG_BAFs_enable", {.min = 0, .max = 3}),
    flag(8182, "LOG_BA_enable", kOn),
    runtime(number(7209, "par_list")),
    flag(8183, "DEBUG"),
    runtime(number(7210, "debug_tv")),
    runtime(number(7211, "debug_tv_samp")),
    runtime(number(7212, "SOURCE_SAMPLES")),
    readOnly(runtime(number(7213, "SOURCE_SAMPLES_OLD"))),
    runtime(text(9061, "SampleFile", 255)),

    runtime(number(7246, "y_BE")),
    runtime(number(7247, "y_BE_LT")),
    runtime(number(7248, "y_BEF")),
    numbered(1, 4, runtime(number(7249, "y_BAF"))),
    runtime(number(7253, "y_BA")),
    runtime(number(7254, "y_LED")),
    runtime(number(7255, "y_EarthFaultState")),
    runtime(number(7256, "y_ShortCircuitState")),
    runtime(number(7257, "calib_U")),
    numbered(0, 3, runtime(number(7258, "calib_U"))),
    runtime(number(7262, "calib_I")),
    numbered(0, 3, runtime(number(7263, "calib_I"))),
    runtime(number(7267, "mw_req")), // request of a measurement snapshot
};

} // namespace talux::catalogue

#endif
