// Fault recorder and statistics.
#ifndef TALUX_TEXTS_RECORDER_H
#define TALUX_TEXTS_RECORDER_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kRecorder[] = {
    value("rec_pretrig_per", {"Vorgeschichte", "Pre-trigger"},
          {"Netzperioden, die vor dem Auslösen aufgezeichnet werden",
           "Grid periods recorded before the trigger"}),
    value("rec_posttrig_t", {"Nachlaufzeit", "Post-trigger time"},
          {"Aufzeichnungsdauer nach dem Auslösen durch einen Erdschluss",
           "Recording time after a trigger by an earth fault"},
          "ms"),
    value("rec_retrig_t", {"Wiederauslösezeit", "Retrigger time"},
          {"Zeit, nach der ein anstehender Fehler erneut auslöst; -1 = nie",
           "Time after which a persisting fault triggers again; -1 = never"},
          "ms"),
    value("rec_retrig_dur", {"Dauer Wiederauslösung", "Retrigger duration"},
          {"Aufzeichnungsdauer nach einem erneuten Auslösen", "Recording time after a repeated trigger"},
          "ms"),
    value("sc_posttrig_C{1..2}", {"Nachlauf Klasse {n}", "Post-trigger class {n}"},
          {"Aufzeichnungsdauer nach einem Kurzschluss der Klasse {n}",
           "Recording time after a short circuit of class {n}"},
          "ms"),
    value(
        "max_cnt_rec", {"Anzahl Aufzeichnungen", "Number of records"},
        {"Höchstzahl der Aufzeichnungen, die aufgehoben werden", "Largest number of records that are kept"}),

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
