// The detection methods with everything that belongs together.
#ifndef TALUX_PAGES_METHODS_H
#define TALUX_PAGES_METHODS_H

#include <string>
#include <string_view>

namespace talux::pages {

// Names are parameters or patterns of series as in the text data, divided by blanks. Numbers are choices,
// single or "28..31", divided by blanks; they are ordered by their texts, which name the method.
struct Method {
    std::string_view de, en;
    std::string_view prefix;     // settings that no method names belong to the one whose prefix they have
    std::string_view enable;     // the switch of the method, then those of its parts
    std::string_view thresholds; // from which on it evaluates
    std::string_view settings;   // angles, cycles, choices, switches
    std::string_view delays;
    std::string_view durations;
    std::string_view logs;
    std::string_view measured;   // what shows the quantities that it looks at, and its states and counters
    std::string_view functions;  // choices of BAassign.. and LEDassign.. (template BA_FUNCTION)
    std::string_view priorities; // choices of prio_list_.. (template PRIORITY)
    std::string_view deRemark = {}, enRemark = {};
    std::string_view deEarthing = {}, enEarthing = {}; // neutral earthing that the method suits
};

// The family whose parameters each belong to one method.
inline constexpr std::string_view kMethodFamily = "Earth-fault detection";

// Patterns of every setting that a method names.
inline std::string settingsOf(const Method& method) {
    std::string all;
    for (const std::string_view names :
         {method.enable, method.thresholds, method.settings, method.delays, method.durations, method.logs})
        (all += names) += ' ';
    return all;
}

inline constexpr Method kMethods[] = {
    {.de = "Erdschluss aus der Spannung",
     .en = "Earth fault from the voltage",
     .prefix = "U",
     .enable = "",
     .thresholds = "Uearth U123ok U123erd",
     .settings = "",
     .delays = "Uearth_SigDel",
     .durations = "Uearth_SigDur Uearth_SigDur_LED",
     .logs = "",
     .measured = "U0_prim U{1..3}_prim I0earth_prim y_EarthFaultState",
     .functions = "5..7 16..23",
     .priorities = "",
     .deRemark =
         "Ohne Schalter, ohne Richtung. 16 >Uerd meldet sofort, 17 >Uerd_verz nach Uearth_SigDel; 5..7 der "
         "gesunde, 18..20 der fehlerhafte Leiter, 21..23 dieser verzögert.",
     .enRemark =
         "Has no switch and no direction. 16 >Uearth signals at once, 17 >Uearth_delay after Uearth_SigDel; "
         "5..7 the healthy phase, 18..20 the faulty phase, 21..23 the latter delayed.",
     .deEarthing = "jede nicht starre; ohne Richtung",
     .enEarthing = "every non-solid earthing; no direction"},
    {.de = "Richtung aus allen Verfahren",
     .en = "Direction from all methods",
     .prefix = "prio_list_",
     .enable = "",
     .thresholds = "",
     .settings = "prio_list_{1..10}",
     .delays = "",
     .durations = "",
     .logs = "",
     .measured = "",
     .functions = "24..27",
     .priorities = "",
     .deRemark =
         "24 und 25 (Sum) fassen die Richtungsmeldungen zusammen, 26 und 27 (Prio) folgen der "
         "Prioritätenliste. Ab Werk ist sie leer (AUS auf allen Plätzen); die Relais 3 und 4 folgen ihr und "
         "melden deshalb nichts.",
     .enRemark =
         "24 and 25 (Sum) combine the direction signals, 26 and 27 (Prio) follow the priority list. The "
         "factory list is empty (AUS in all places); relays 3 and 4 follow it, so they signal nothing."},
    {.de = "Wischer (qu2)",
     .en = "Transient (qu2)",
     .prefix = "qu2_",
     .enable = "qu2_active qu2_DE_active",
     .thresholds = "qu2_Ice qu2_rot_grad_min U_Hz_proz preBuff_Umin preBuff_dUo",
     .settings = "qu2_MsgResetEf qu_signalling",
     .delays = "DE_t",
     .durations = "qu2_SigDur qu2_SigDur_LED",
     .logs = "LCD_log_active_qu2",
     .measured = "EvCnt_qu2 EvCnt_qu2_c{0..4}",
     .functions = "28..31",
     .priorities = "2 3",
     .deRemark = "30, 31 und Priorität 3 (CE) gelten dem Dauererdschluss (qu2_DE_active, DE_t).",
     .enRemark = "30, 31 and priority 3 (CE) are those of the sustained earth fault (qu2_DE_active, DE_t).",
     .deEarthing = "isoliert, gelöscht",
     .enEarthing = "isolated, resonant-earthed"},
    {.de = "Intermittierend und wiederzündend (qui)",
     .en = "Intermittent and restriking (qui)",
     .prefix = "qui_",
     .enable = "qui_active",
     .thresholds = "qui_dUo qui_Ice",
     .settings = "qui_T_super qui_n",
     .delays = "",
     .durations = "qui_SigDur qui_SigDur_LED",
     .logs = "LCD_log_active_qui qui_log_cycle qui_dT_log",
     .measured = "",
     .functions = "32 33",
     .priorities = "4",
     .deEarthing = "gelöscht, isoliert; wiederzündende Fehler, oft in Kabeln",
     .enEarthing = "resonant-earthed, isolated; restriking faults, often in cables"},
    {.de = "Oberschwingung 250 Hz (H250)",
     .en = "Harmonic 250 Hz (H250)",
     .prefix = "harm1_",
     .enable = "harm1_active",
     .thresholds = "harm1_Umin harm1_Ice",
     .settings = "harm1_angle harm1_cycle",
     .delays = "harm1_SigDel",
     .durations = "harm1_SigDur harm1_SigDur_LED",
     .logs = "LCD_log_active_ov5 harm1_log_cycle harm1_dT_log",
     .measured = "U0_250_abs I0_250_abs Y0_250_abs Y0_250_phi",
     .functions = "40 41",
     .priorities = "5",
     .deEarthing = "gelöscht",
     .enEarthing = "resonant-earthed"},
    {.de = "Oberschwingung einstellbarer Frequenz (H fx1)",
     .en = "Harmonic of settable frequency (H fx1)",
     .prefix = "harm2_",
     .enable = "harm2_active",
     .thresholds = "harm2_Umin harm2_Ice",
     .settings = "harm2_f harm2_angle harm2_cycle",
     .delays = "harm2_SigDel",
     .durations = "harm2_SigDur harm2_SigDur_LED",
     .logs = "LCD_log_active_ovx harm2_log_cycle harm2_dT_log",
     .measured = "U0_f1_abs I0_f1_abs Y0_f1_abs Y0_f1_phi",
     .functions = "42 43",
     .priorities = "6",
     .deRemark = "Wofür Priorität 7 (ovx1) steht, ist nicht dokumentiert.",
     .enRemark = "What priority 7 (ovx1) stands for is not documented.",
     .deEarthing = "gelöscht, mit Rundsteuerung",
     .enEarthing = "resonant-earthed, with ripple control"},
    {.de = "Admittanz (fx2)",
     .en = "Admittance (fx2)",
     .prefix = "adm_",
     .enable = "adm_active adm_Uo_enabled",
     .thresholds = "adm_I_min_{1..2} adm_U_min adm_Z_f_max",
     .settings =
         "adm_fu adm_fo adm_Phi_FW_min adm_Phi_FW_max adm_Phi_BW_min adm_Phi_BW_max adm_T_win adm_dPhi_Yo "
         "adm_N_cycles",
     .delays = "adm_T_delay",
     .durations = "adm_T_hold adm_T_hold_LED",
     .logs = "LCD_log_active_adm adm_log_active adm_log_cycle adm_log_dT",
     .measured = "U0_{f2,f3}_abs I0_{f2,f3}_abs Y0_{f2,f3}_abs Y0_{f2,f3}_phi",
     .functions = "44..47 85 86",
     .priorities = "",
     .deRemark =
         "85 und 86 (DynAdm) sind die Meldungen des Verfahrens; 44..47 (H_fx2+, H_fx2-) tragen seine Frequenz "
         "im Namen; welches Verfahren sie bildet, ist nicht dokumentiert. In der Prioritätenliste kommt es nicht vor.",
     .enRemark =
         "85 and 86 (DynAdm) are the signals of the method; 44..47 (H_fx2+, H_fx2-) have its frequency in "
         "their names, but which method forms them is not documented. The method is not in the priority list.",
     .deEarthing = "gelöscht",
     .enEarthing = "resonant-earthed"},
    {.de = "Wattmetrisch (Cos(phi))",
     .en = "Wattmetric (Cos(phi))",
     .prefix = "cos_",
     .enable = "cos_active",
     .thresholds = "cos_Iw_min cos_w_min",
     .settings = "cos_cycle cos_store_active",
     .delays = "cos_SigDel",
     .durations = "cos_SigDur cos_SigDur_LED",
     .logs = "LCD_log_active_cos cos_log_cycle cos_dT_log",
     .measured = "U0_prim I0_prim phiUI0 P0_prim",
     .functions = "34 35",
     .priorities = "8",
     .deEarthing = "gelöscht",
     .enEarthing = "resonant-earthed"},
    {.de = "Isolierter Sternpunkt (Sin(phi))",
     .en = "Isolated neutral (Sin(phi))",
     .prefix = "sin_",
     .enable = "sin_active",
     .thresholds = "sin_I_min sin_w_min",
     .settings = "sin_cycle",
     .delays = "sin_SigDel",
     .durations = "sin_SigDur sin_SigDur_LED",
     .logs = "LCD_log_active_sin sin_log_cycle sin_dT_log",
     .measured = "U0_prim I0_prim phiUI0 Q0_prim",
     .functions = "36 37",
     .priorities = "9",
     .deEarthing = "isoliert",
     .enEarthing = "isolated"},
    {.de = "Einstellbare Winkel (CosSin)",
     .en = "Settable angles (CosSin)",
     .prefix = "cos_sin_",
     .enable = "cos_sin_active",
     .thresholds = "CosSin_I_min",
     .settings = "CosSin_angle{1..2} cos_sin_cycle",
     .delays = "cos_sin_SigDel",
     .durations = "cos_sin_SigDur cos_sin_SigDur_LED",
     .logs = "LCD_log_active_sincos cos_sin_log_cycle cos_sin_dT_log",
     .measured = "U0_prim I0_prim phiUI0",
     .functions = "38 39",
     .priorities = "",
     .deRemark = "In der Prioritätenliste kommt das Verfahren nicht vor.",
     .enRemark = "The method is not in the priority list.",
     .deEarthing = "je nach Winkel; auch niederohmig geerdet",
     .enEarthing = "depends on the angles; also low-impedance earthed"},
    {.de = "Pulsortung 50 Hz (p50)",
     .en = "Pulse locating 50 Hz (p50)",
     .prefix = "p50_",
     .enable = "p50_active p50_Uen_active",
     .thresholds = "p50_dIe",
     .settings = "p50_T_on p50_T_off p50_P_min p50_P_sum",
     .delays = "",
     .durations = "p50_SigDur",
     .logs = "LCD_log_active_puls50 p50_log_cycle p50_dT_log",
     .measured = "I0_prim",
     .functions = "48..52",
     .priorities = "10",
     .deEarthing = "gelöscht, mit Taktgerät an der Löschspule",
     .enEarthing = "resonant-earthed, with a pulsing device at the coil"},
    {.de = "Pulsortung HPCI",
     .en = "Pulse locating HPCI",
     .prefix = "pHPCI_",
     .enable = "pHPCI_active",
     .thresholds = "pHPCI_I_min pHPCI_U_min pHPCI_Z_f_max",
     .settings = "pHPCI_Q_pulse pHPCI_pattern pHPCI_N_cycles pHPCI_dPhi pHPCI_Yo_quot_abs pHPCI_Yo_quot_phi",
     .delays = "pHPCI_T_delay",
     .durations = "pHPCI_T_hold pHPCI_T_hold_LED",
     .logs = "LCD_log_active_HPCI",
     .measured = "",
     .functions = "53..56",
     .priorities = "",
     .deRemark = "In der Prioritätenliste kommt das Verfahren nicht vor.",
     .enRemark = "The method is not in the priority list.",
     .deEarthing = "gelöscht, mit Stromeinspeisung",
     .enEarthing = "resonant-earthed, with current injection"},
    {.de = "Kurzschluss",
     .en = "Short circuit",
     .prefix = "sc_",
     .enable = "sc_active sc_class_{1,2,E}_active sc_dir_active",
     .thresholds = "sc_I_min_{1,2,E}",
     .settings = "sc_Phi_min_fwd sc_Phi_max_fwd sc_Phi_min_bwd sc_Phi_max_bwd sc_sig_fwd_U_zero",
     .delays = "sc_T_min_{1,2,E}",
     .durations = "sc_SigDur sc_SigDur_LED sc_posttrig_C{1..2}",
     .logs = "",
     .measured = "I{1..3}sc_prim IEsc_prim y_ShortCircuitState",
     .functions = "57..80 87..89",
     .priorities = "",
     .deRemark =
         "57..64 ohne Richtung, 65..72 vorwärts, 73..80 rückwärts, 87..89 der Erdstrom. Dass >I die Klasse 1 "
         "und >>I die Klasse 2 meldet, ist aus den Namen gelesen.",
     .enRemark =
         "57..64 without direction, 65..72 forward, 73..80 backward, 87..89 the earth current. That >I signals class "
         "1 and >>I class 2 is read from the names."},
    {.de = "Frequenzabweichung (df)",
     .en = "Frequency deviation (df)",
     .prefix = "freq_",
     .enable = "freq_active",
     .thresholds = "freq_df_min freq_df_max",
     .settings = "freq_f_grid freq_N_cycle",
     .delays = "freq_T_delay",
     .durations = "freq_T_hold freq_T_hold_LED",
     .logs = "freq_log_entry",
     .measured = "f_grid",
     .functions = "82..84",
     .priorities = "",
     .deRemark = "freq_U0_active bis freq_U3_active gehören zur Frequenzmessung, nicht hierher.",
     .enRemark = "freq_U0_active to freq_U3_active belong to the measurement of the frequency, not here."},
    {.de = "Ohne Verfahren",
     .en = "Without a method",
     .prefix = "",
     .enable = "",
     .thresholds = "",
     .settings = "uBAF{1..8}",
     .delays = "",
     .durations = "",
     .logs = "",
     .measured = "",
     .functions = "2..4 8..15 81",
     .priorities = "",
     .deRemark =
         "Programm, Status, Fehler, die acht Funktionen des Benutzers und Ferroresonanz, zu der es keine "
         "Einstellung gibt.",
     .enRemark =
         "Program, status, error, the eight functions of the user, and ferroresonance, which has no setting."},
};

} // namespace talux::pages

#endif
