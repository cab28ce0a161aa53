// Statistics and what they record.
#ifndef TALUX_TEXTS_STATISTICS_H
#define TALUX_TEXTS_STATISTICS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kStatistics[] = {
    value("stat_enabled", {"Statistik aktiv", "Statistics active"},
          {"Messwerte über das Statistikintervall auswerten und speichern",
           "Evaluate and store measured values over the statistics interval"}),
    value("stat_intervall", {"Statistikintervall", "Statistics interval"},
          {"Dauer eines Intervalls, über das ausgewertet wird", "Length of an interval that is evaluated"},
          "min"),
    label("stat_{I,U}{0..3}_max_enabled", {"Statistik {n}{m} Max.", "Statistics {n}{m} max."}),
    label("stat_{I,U}{0..3}_av_enabled", {"Statistik {n}{m} Mittel", "Statistics {n}{m} aver."}),
    label("stat_U{0..3}_min_enabled", {"Statistik U{n} Min.", "Statistics U{n} min."}),
    label("stat_U{12,23,31}_max_enabled", {"Statistik U{n} Max.", "Statistics U{n} max."}),
    label("stat_{P,Q}{0..3}_max_enabled", {"Statistik {n}{m} Max.", "Statistics {n}{m} max."}),
    label("stat_{P,Q,S}_all_max_enabled", {"Statistik {n} ges. Max.", "Statistics {n} tot. max."}),
    label("stat_{P,Q}{0..3}_min_enabled", {"Statistik {n}{m} Min.", "Statistics {n}{m} min."}),
    label("stat_{P,Q}_all_min_enabled", {"Statistik {n} ges. Min.", "Statistics {n} tot. min."}),
    label("stat_{P,Q}{0..3}_av_enabled", {"Statistik {n}{m} Mittel", "Statistics {n}{m} aver."}),
    label("stat_{P,Q,S}_all_av_enabled", {"Statistik {n} ges. Mittel", "Statistics {n} tot. aver."}),
};

} // namespace talux::texts

#endif
