// Fault recorder and statistics.
#ifndef TALUX_PARAMETERS_RECORDER_H
#define TALUX_PARAMETERS_RECORDER_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

// Texts that several rows share.
inline constexpr Words kStatMaxActive{{"Stat. {n}{m} Max. aktiv"}, {"Stat. {n}{m} max. active"}};
inline constexpr Words kStatAvgActive{{"Stat. {n}{m} Mittel aktiv"}, {"Stat. {n}{m} avg. active"}};
inline constexpr Words kStatMinActive{{"Stat. {n}{m} Min. aktiv"}, {"Stat. {n}{m} min. active"}};
inline constexpr Words kStatTotMaxActive{{"Stat. {n} ges. Max. aktiv"}, {"Stat. {n} tot. max. active"}};
inline constexpr Words kStatTotMinActive{{"Stat. {n} ges. Min. aktiv"}, {"Stat. {n} tot. min. active"}};
inline constexpr Words kStatTotAvgActive{{"Stat. {n} ges. Mit. aktiv"}, {"Stat. {n} tot. avg. active"}};

inline constexpr Row kRecorderRows[] = {
    number(6986, "rec_pretrig_per", {.def = 5, .min = 1, .max = 11},
           {{"Vorgeschichte", "Netzperioden, die vor dem Auslösen aufgezeichnet werden"},
            {"Pre-trigger", "Periods of the system frequency recorded before the trigger"}}),
    number(6987, "rec_posttrig_t", {.def = 2000, .unit = "ms"},
           {{"Nachlaufzeit", "Aufzeichnungsdauer nach dem Auslösen"},
            {"Post-trigger time", "Recording time after the trigger"}}),
    number(6988, "rec_retrig_t", {.def = -1, .min = -1, .max = 999000, .unit = "ms"},
           {{"Wiederauslösezeit", "Zeit, nach der ein anstehender Fehler erneut auslöst"},
            {"Retrigger time", "Time after which a persisting fault triggers again"}}),
    number(6989, "rec_retrig_dur", {.def = 1000, .unit = "ms"},
           {{"Dauer Wiederauslösung", "Aufzeichnungsdauer nach einem erneuten Auslösen"},
            {"Retrigger duration", "Recording time after a repeated trigger"}}),
    number(6990, "sc_posttrig_C{1..2}",
           {.def = 200, .min = 100, .max = 2500, .unit = "ms", .of = {kShortCircuit, kDuration}},
           {{"Nachlauf KS-Klasse {n}", "Aufzeichnungsdauer nach einem Kurzschluss der Klasse {n}"},
            {"Post-trigger SC class {n}", "Recording time after a short circuit of class {n}"}}),
    number(6992, "max_cnt_rec", {.def = 100, .min = 1, .max = 10000},
           {{"Höchstzahl Störschriebe", "Größte Zahl von Störschrieben"},
            {"Maximum fault records", "Largest number of fault records"}}),
    flag(8116, "stat_enabled", {},
         {{"Statistik aktiv", "Messwerte über das Statistikintervall auswerten und speichern"},
          {"Statistics active", "Evaluate and store measured values over the statistics interval"}}),
    number(6993, "stat_intervall", {.def = 10, .min = 1, .max = 60, .unit = "min"},
           {{"Statistikintervall", "Dauer eines Intervalls, über das ausgewertet wird"},
            {"Statistics interval", "Length of an interval that is evaluated"}}),
    flag(8117, "stat_I{0..3}_max_enabled", {}, kStatMaxActive("I")),
    flag(8121, "stat_I{0..3}_av_enabled", {}, kStatAvgActive("I")),
    flag(8125, "stat_U{0..3}_max_enabled", {}, kStatMaxActive("U")),
    flag(8129, "stat_U{0..3}_min_enabled", {}, {{"Stat. U{n} Min. aktiv"}, {"Stat. U{n} min. active"}}),
    flag(8133, "stat_U{0..3}_av_enabled", {}, kStatAvgActive("U")),
    flag(8137, "stat_U{12,23,31}_max_enabled", {}, {{"Stat. U{n} Max. aktiv"}, {"Stat. U{n} max. active"}}),
    flag(8140, "stat_P{0..3}_max_enabled", {}, kStatMaxActive("P")),
    flag(8144, "stat_P{0..3}_min_enabled", {}, kStatMinActive("P")),
    flag(8148, "stat_P{0..3}_av_enabled", {}, kStatAvgActive("P")),
    flag(8152, "stat_Q{0..3}_max_enabled", {}, kStatMaxActive("Q")),
    flag(8156, "stat_Q{0..3}_min_enabled", {}, kStatMinActive("Q")),
    flag(8160, "stat_Q{0..3}_av_enabled", {}, kStatAvgActive("Q")),
    flag(8164, "stat_P_all_max_enabled", {}, kStatTotMaxActive("P")),
    flag(8165, "stat_P_all_min_enabled", {}, kStatTotMinActive("P")),
    flag(8166, "stat_P_all_av_enabled", {}, kStatTotAvgActive("P")),
    flag(8167, "stat_Q_all_max_enabled", {}, kStatTotMaxActive("Q")),
    flag(8168, "stat_Q_all_min_enabled", {}, kStatTotMinActive("Q")),
    flag(8169, "stat_Q_all_av_enabled", {}, kStatTotAvgActive("Q")),
    flag(8170, "stat_S_all_max_enabled", {}, kStatTotMaxActive("S")),
    flag(8171, "stat_S_all_av_enabled", {}, kStatTotAvgActive("S")),
};

inline constexpr Note kRecorderNotes[] = {
    unknown("rec_retrig_t BAF_cnt_val_dT{1..2}", "Was -1 bedeutet, ist nicht dokumentiert.",
            "What -1 means is not documented."),
    advice("stat_{I,U}{0..3}_max_enabled stat_{I,U}{0..3}_av_enabled stat_U{0..3}_min_enabled "
           "stat_U{12,23,31}_max_enabled stat_{P,Q}{0..3}_max_enabled stat_{P,Q,S}_all_max_enabled "
           "stat_{P,Q}{0..3}_min_enabled stat_{P,Q}_all_min_enabled stat_{P,Q}{0..3}_av_enabled "
           "stat_{P,Q,S}_all_av_enabled",
           "Schalter, kein Messwert: nimmt die Größe in die Statistik auf, wenn stat_enabled 1 ist. Der Wert "
           "steht im Datensatz StatRecord_c0.",
           "A switch, not a measured value: includes the quantity in the statistics if stat_enabled is 1. "
           "The value is in the record StatRecord_c0."),
    unknown("rec_retrig_t rec_retrig_dur", "Die Wirkung ist aus dem Namen gelesen.",
            "The effect is read from the name."),
    warning("rec_pretrig_per stat_intervall", "Ganze Zahl; Nachkommastellen fallen weg (2,5 wird 2).",
            "Whole number; a fraction is cut off (2.5 becomes 2)."),
};

} // namespace talux::parameters

#endif
