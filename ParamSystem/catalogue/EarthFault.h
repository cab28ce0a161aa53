// Earth-fault and short-circuit detection: thresholds and methods. Currents are primary (A), angles in
// degrees, times in seconds where nothing else is said.
#ifndef TALUX_CATALOGUE_EARTH_FAULT_H
#define TALUX_CATALOGUE_EARTH_FAULT_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

constexpr ParameterRow duration(int id, const char* name, double def = 0) {
    return decimal(id, name, {.def = def, .min = 0, .max = 86400});
}

inline constexpr ParameterRow kEarthFault[] = {
    // general thresholds in percent
    decimal(2146, "U123ok", {.def = 80, .min = 1, .max = 90}),
    decimal(2147, "U123erd", {.def = 20, .min = 1, .max = 90}),
    decimal(2148, "Uearth", {.def = 30, .min = 1, .max = 90}),
    duration(2149, "Uearth_SigDel", 1),
    duration(2150, "Uearth_SigDur"),
    duration(2151, "Uearth_SigDur_LED"),
    numbered(1, 10, choice(10118, "prio_list_", {.like = kPriorityFunction, .min = 1})),

    // transient
    flag(8074, "qu2_active", kOn),
    decimal(2152, "qu2_Ice", {.def = 5}),
    decimal(2153, "qu2_rot_grad_min", {.def = 50}),
    decimal(2154, "U_Hz_proz", {.def = 30}),
    decimal(2155, "preBuff_Umin", {.def = 0.2}),
    decimal(2156, "preBuff_dUo", {.def = 0.2}),
    flag(8075, "qu2_DE_active", kOn),
    decimal(2157, "DE_t", {.def = 1}),
    duration(2158, "qu2_SigDur"),
    duration(2159, "qu2_SigDur_LED"),
    flag(8076, "qu2_MsgResetEf"),
    choice(10128, "qu_signalling", {.choices = 3, .min = 2, .def = 2}),
    flag(8077, "LCD_log_active_qu2"),

    // qui
    flag(8078, "qui_active", kOn),
    decimal(2160, "qui_dUo", {.def = 15}),
    decimal(2161, "qui_Ice", {.def = 5}),
    number(6974, "qui_T_super", {.def = 400}), // ms
    number(6975, "qui_n", {.def = 2}),
    duration(2162, "qui_SigDur"),
    duration(2163, "qui_SigDur_LED"),
    flag(8079, "LCD_log_active_qui"),
    flag(8080, "qui_log_cycle"),
    decimal(2164, "qui_dT_log", {.def = 60}),

    // fifth harmonic
    flag(8081, "harm1_active"),
    decimal(2165, "harm1_Umin", {.def = 0.5}),
    decimal(2166, "harm1_Ice", {.def = 1}),
    decimal(2167, "harm1_angle", {.def = 5}),
    number(6976, "harm1_cycle", {.def = 5}),
    duration(2168, "harm1_SigDel"),
    duration(2169, "harm1_SigDur"),
    duration(2170, "harm1_SigDur_LED"),
    flag(8082, "LCD_log_active_ov5"),
    flag(8083, "harm1_log_cycle"),
    decimal(2171, "harm1_dT_log"),

    // harmonic of a settable frequency
    flag(8084, "harm2_active"),
    decimal(2172, "harm2_f", {.def = 217}),
    decimal(2173, "harm2_Umin", {.def = 0.5}),
    decimal(2174, "harm2_Ice", {.def = 3}),
    decimal(2175, "harm2_angle", {.def = 5}),
    number(6977, "harm2_cycle", {.def = 5}),
    duration(2176, "harm2_SigDel"),
    duration(2177, "harm2_SigDur", 5),
    duration(2178, "harm2_SigDur_LED"),
    flag(8085, "LCD_log_active_ovx"),
    flag(8086, "harm2_log_cycle"),
    decimal(2179, "harm2_dT_log"),

    // admittance
    flag(8087, "adm_active"),
    decimal(2180, "adm_I_min_1", {.def = 1}),
    decimal(2181, "adm_I_min_2", {.def = 3}),
    decimal(2182, "adm_Z_f_max", {.def = 2000}),
    decimal(2183, "adm_fu", {.def = 25}),
    decimal(2184, "adm_fo", {.def = 75}),
    decimal(2185, "adm_Phi_FW_min", {.def = -255}),
    decimal(2186, "adm_Phi_FW_max", {.def = 80}),
    decimal(2187, "adm_Phi_BW_min", {.def = 85}),
    decimal(2188, "adm_Phi_BW_max", {.def = 95}),
    decimal(2189, "adm_T_win", {.def = 0.12}),
    decimal(2190, "adm_U_min", {.def = 1}),
    flag(8088, "adm_Uo_enabled"),
    decimal(2191, "adm_dPhi_Yo", {.def = -200}),
    number(6978, "adm_N_cycles", {.def = 3}),
    decimal(2192, "adm_T_delay"),
    decimal(2193, "adm_T_hold"),
    decimal(2194, "adm_T_hold_LED"),
    flag(8089, "adm_log_active"),
    flag(8090, "adm_log_cycle"),
    decimal(2195, "adm_log_dT"),
    flag(8091, "LCD_log_active_adm"),

    // cos(phi)
    flag(8092, "cos_active"),
    decimal(2196, "cos_Iw_min", {.def = 1}),
    decimal(2197, "cos_w_min", {.def = 2}),
    number(6979, "cos_cycle", {.def = 5}),
    flag(8093, "cos_store_active"),
    duration(2198, "cos_SigDel"),
    duration(2199, "cos_SigDur"),
    duration(2200, "cos_SigDur_LED"),
    flag(8094, "LCD_log_active_cos"),
    flag(8095, "cos_log_cycle"),
    decimal(2201, "cos_dT_log"),

    // sin(phi)
    flag(8096, "sin_active"),
    decimal(2202, "sin_I_min", {.def = 5}),
    decimal(2203, "sin_w_min", {.def = 5}),
    number(6980, "sin_cycle", {.def = 5}),
    duration(2204, "sin_SigDel"),
    duration(2205, "sin_SigDur"),
    duration(2206, "sin_SigDur_LED"),
    flag(8097, "LCD_log_active_sin"),
    flag(8098, "sin_log_cycle"),
    decimal(2207, "sin_dT_log"),

    // cos(phi) and sin(phi)
    flag(8099, "cos_sin_active"),
    decimal(2208, "CosSin_I_min", {.def = 2}),
    decimal(2209, "CosSin_angle1", {.def = 1}),
    decimal(2210, "CosSin_angle2", {.def = -91}),
    number(6981, "cos_sin_cycle", {.def = 3}),
    duration(2211, "cos_sin_SigDel"),
    duration(2212, "cos_sin_SigDur"),
    duration(2213, "cos_sin_SigDur_LED"),
    flag(8100, "LCD_log_active_sincos"),
    flag(8101, "cos_sin_log_cycle"),
    decimal(2214, "cos_sin_dT_log", {.def = 300}),

    // 50 Hz pulses
    flag(8102, "p50_active"),
    flag(8103, "p50_Uen_active"),
    decimal(2215, "p50_dIe", {.def = 1}),
    decimal(2216, "p50_T_on", {.def = 1}),
    decimal(2217, "p50_T_off", {.def = 1.5}),
    number(6982, "p50_P_min", {.def = 3}),
    number(6983, "p50_P_sum", {.def = 5}),
    duration(2218, "p50_SigDur"),
    flag(8104, "LCD_log_active_puls50"),
    flag(8105, "p50_log_cycle"),
    decimal(2219, "p50_dT_log"),

    // high-power pulses
    flag(8106, "pHPCI_active"),
    decimal(2220, "pHPCI_Q_pulse", {.def = 35, .min = 17.5, .max = 70}),
    decimal(2221, "pHPCI_I_min", {.def = 1}),
    choice(10129, "pHPCI_pattern", {.choices = 6, .min = 0, .def = 5}),
    number(6984, "pHPCI_N_cycles", {.def = 3}), // of 200 ms
    decimal(2222, "pHPCI_Z_f_max", {.def = 2000}),
    decimal(2223, "pHPCI_U_min", {.def = 1}),
    decimal(2224, "pHPCI_dPhi", {.def = 5}),
    decimal(2225, "pHPCI_Yo_quot_abs", {.def = 0.99, .min = 0.9, .max = 0.999}),
    decimal(2226, "pHPCI_Yo_quot_phi", {.def = 1}),
    decimal(2227, "pHPCI_T_delay"),
    decimal(2228, "pHPCI_T_hold"),
    decimal(2229, "pHPCI_T_hold_LED"),
    flag(8107, "LCD_log_active_HPCI"),

    // short circuit
    flag(8108, "sc_active"),
    flag(8109, "sc_class_1_active", kOn),
    decimal(2230, "sc_I_min_1", {.def = 500}),
    decimal(2231, "sc_T_min_1", {.def = 0.5}),
    flag(8110, "sc_class_2_active", kOn),
    decimal(2232, "sc_I_min_2", {.def = 700}),
    decimal(2233, "sc_T_min_2", {.def = 0.1}),
    flag(8111, "sc_class_E_active"),
    decimal(2234, "sc_I_min_E", {.def = 100}),
    decimal(2235, "sc_T_min_E", {.def = 0.1}),
    duration(2236, "sc_SigDur", 10),
    duration(2237, "sc_SigDur_LED"),
    flag(8112, "sc_dir_active"),
    decimal(2238, "sc_Phi_max_fwd", {.def = 80}),
    decimal(2239, "sc_Phi_min_fwd", {.def = -35}),
    decimal(2240, "sc_Phi_max_bwd", {.def = -100}),
    decimal(2241, "sc_Phi_min_bwd", {.def = -215}),
    flag(8113, "sc_sig_fwd_U_zero"),

    // frequency deviation
    flag(8114, "freq_active"),
    decimal(2242, "freq_f_grid", {.def = 50, .min = 16.7, .max = 65}),
    decimal(2243, "freq_df_min", {.def = 0.1}),
    decimal(2244, "freq_df_max", {.def = 0.1}),
    number(6985, "freq_N_cycle", {.def = 3}),
    decimal(2245, "freq_T_delay", {.def = 3}),
    decimal(2246, "freq_T_hold", {.def = 15}),
    decimal(2247, "freq_T_hold_LED"),
    flag(8115, "freq_log_entry"),
};

} // namespace talux::catalogue

#endif
