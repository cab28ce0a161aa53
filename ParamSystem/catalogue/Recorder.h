// Fault recorder and statistics.
#ifndef TALUX_CATALOGUE_RECORDER_H
#define TALUX_CATALOGUE_RECORDER_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

inline constexpr ParameterRow kRecorder[] = {
    number(6986, "rec_pretrig_per", {.def = 5, .min = 1, .max = 11}), // periods
    number(6987, "rec_posttrig_t", {.def = 2000}),                    // ms
    number(6988, "rec_retrig_t", {.def = -1, .min = -1, .max = 999000}),
    number(6989, "rec_retrig_dur", {.def = 1000}),
    number(6990, "sc_posttrig_C1", {.def = 200, .min = 100, .max = 2500}),
    number(6991, "sc_posttrig_C2", {.def = 200, .min = 100, .max = 2500}),
    number(6992, "max_cnt_rec", {.def = 100, .min = 1, .max = 10000}),
    flag(8116, "stat_enabled"),
    number(6993, "stat_intervall", {.def = 10, .min = 1, .max = 60}), // minutes
    flag(8117, "stat_I0_max_enabled"),
    flag(8118, "stat_I1_max_enabled"),
    flag(8119, "stat_I2_max_enabled"),
    flag(8120, "stat_I3_max_enabled"),
    flag(8121, "stat_I0_av_enabled"),
    flag(8122, "stat_I1_av_enabled"),
    flag(8123, "stat_I2_av_enabled"),
    flag(8124, "stat_I3_av_enabled"),
    flag(8125, "stat_U0_max_enabled"),
    flag(8126, "stat_U1_max_enabled"),
    flag(8127, "stat_U2_max_enabled"),
    flag(8128, "stat_U3_max_enabled"),
    flag(8129, "stat_U0_min_enabled"),
    flag(8130, "stat_U1_min_enabled"),
    flag(8131, "stat_U2_min_enabled"),
    flag(8132, "stat_U3_min_enabled"),
    flag(8133, "stat_U0_av_enabled"),
    flag(8134, "stat_U1_av_enabled"),
    flag(8135, "stat_U2_av_enabled"),
    flag(8136, "stat_U3_av_enabled"),
    flag(8137, "stat_U12_max_enabled"),
    flag(8138, "stat_U23_max_enabled"),
    flag(8139, "stat_U31_max_enabled"),
    flag(8140, "stat_P0_max_enabled"),
    flag(8141, "stat_P1_max_enabled"),
    flag(8142, "stat_P2_max_enabled"),
    flag(8143, "stat_P3_max_enabled"),
    flag(8144, "stat_P0_min_enabled"),
    flag(8145, "stat_P1_min_enabled"),
    flag(8146, "stat_P2_min_enabled"),
    flag(8147, "stat_P3_min_enabled"),
    flag(8148, "stat_P0_av_enabled"),
    flag(8149, "stat_P1_av_enabled"),
    flag(8150, "stat_P2_av_enabled"),
    flag(8151, "stat_P3_av_enabled"),
    flag(8152, "stat_Q0_max_enabled"),
    flag(8153, "stat_Q1_max_enabled"),
    flag(8154, "stat_Q2_max_enabled"),
    flag(8155, "stat_Q3_max_enabled"),
    flag(8156, "stat_Q0_min_enabled"),
    flag(8157, "stat_Q1_min_enabled"),
    flag(8158, "stat_Q2_min_enabled"),
    flag(8159, "stat_Q3_min_enabled"),
    flag(8160, "stat_Q0_av_enabled"),
    flag(8161, "stat_Q1_av_enabled"),
    flag(8162, "stat_Q2_av_enabled"),
    flag(8163, "stat_Q3_av_enabled"),
    flag(8164, "stat_P_all_max_enabled"),
    flag(8165, "stat_P_all_min_enabled"),
    flag(8166, "stat_P_all_av_enabled"),
    flag(8167, "stat_Q_all_max_enabled"),
    flag(8168, "stat_Q_all_min_enabled"),
    flag(8169, "stat_Q_all_av_enabled"),
    flag(8170, "stat_S_all_max_enabled"),
    flag(8171, "stat_S_all_av_enabled"),
};

} // namespace talux::catalogue

#endif
