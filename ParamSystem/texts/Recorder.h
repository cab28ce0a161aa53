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
          {"Aufzeichnungsdauer nach dem Auslösen", "Recording time after the trigger"}, "ms"),
    value("rec_retrig_t", {"Wiederauslösezeit", "Retrigger time"},
          {"Zeit, nach der ein anstehender Fehler erneut auslöst",
           "Time after which a persisting fault triggers again"},
          "ms"),
    value("rec_retrig_dur", {"Dauer Wiederauslösung", "Retrigger duration"},
          {"Aufzeichnungsdauer nach einem erneuten Auslösen", "Recording time after a repeated trigger"},
          "ms"),
    value("sc_posttrig_C{1..2}", {"Nachlauf KS-Klasse {n}", "Post-trigger SC class {n}"},
          {"Aufzeichnungsdauer nach einem Kurzschluss der Klasse {n}",
           "Recording time after a short circuit of class {n}"},
          "ms"),
    value("max_cnt_rec", {"Anzahl Aufzeichnungen", "Number of records"},
          {"Größte Zahl der Störschriebe", "Largest number of fault records"}),

    value("stat_enabled", {"Statistik aktiv", "Statistics active"},
          {"Messwerte über das Statistikintervall auswerten und speichern",
           "Evaluate and store measured values over the statistics interval"}),
    value("stat_intervall", {"Statistikintervall", "Statistics interval"},
          {"Dauer eines Intervalls, über das ausgewertet wird", "Length of an interval that is evaluated"},
          "min"),
    label("stat_{I,U}{0..3}_max_enabled", {"Statistik {n}{m} Maximum", "Statistics {n}{m} maximum"}),
    label("stat_{I,U}{0..3}_av_enabled", {"Statistik {n}{m} Mittel", "Statistics {n}{m} average"}),
    label("stat_U{0..3}_min_enabled", {"Statistik U{n} Minimum", "Statistics U{n} minimum"}),
    label("stat_U{12,23,31}_max_enabled", {"Statistik U{n} Maximum", "Statistics U{n} maximum"}),
    label("stat_{P,Q}{0..3}_max_enabled", {"Statistik {n}{m} Maximum", "Statistics {n}{m} maximum"}),
    label("stat_{P,Q,S}_all_max_enabled", {"Statistik {n} alle Maximum", "Statistics {n} all maximum"}),
    label("stat_{P,Q}{0..3}_min_enabled", {"Statistik {n}{m} Minimum", "Statistics {n}{m} minimum"}),
    label("stat_{P,Q}_all_min_enabled", {"Statistik {n} alle Minimum", "Statistics {n} all minimum"}),
    label("stat_{P,Q}{0..3}_av_enabled", {"Statistik {n}{m} Mittel", "Statistics {n}{m} average"}),
    label("stat_{P,Q,S}_all_av_enabled", {"Statistik {n} alle Mittel", "Statistics {n} all average"}),
};

} // namespace talux::texts

#endif
