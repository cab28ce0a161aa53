// Fault recorder and statistics.
#ifndef TALUX_TEXTS_RECORDER_H
#define TALUX_TEXTS_RECORDER_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kRecorder[] = {
    value("rec_pretrig_per", {"Vorgeschichte", "Pre-trigger"},
          {"Netzperioden, die vor dem Auslösen aufgezeichnet werden",
           "Periods of the system frequency recorded before the trigger"}),
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
    value("max_cnt_rec", {"Höchstzahl Störschriebe", "Maximum fault records"},
          {"Größte Zahl von Störschrieben", "Largest number of fault records"}),

    value("stat_enabled", {"Statistik aktiv", "Statistics active"},
          {"Messwerte über das Statistikintervall auswerten und speichern",
           "Evaluate and store measured values over the statistics interval"}),
    value("stat_intervall", {"Statistikintervall", "Statistics interval"},
          {"Dauer eines Intervalls, über das ausgewertet wird", "Length of an interval that is evaluated"},
          "min"),
    value("stat_{I,U}{0..3}_max_enabled", {"Stat. {n}{m} Max. aktiv", "Stat. {n}{m} max. active"},
          {"Maximum von {n}{m} in der Statistik speichern", "Store the maximum of {n}{m} in the statistics"}),
    value("stat_{I,U}{0..3}_av_enabled", {"Stat. {n}{m} Mittel aktiv", "Stat. {n}{m} avg. active"},
          {"Mittelwert von {n}{m} in der Statistik speichern",
           "Store the average of {n}{m} in the statistics"}),
    value("stat_U{0..3}_min_enabled", {"Stat. U{n} Min. aktiv", "Stat. U{n} min. active"},
          {"Minimum von U{n} in der Statistik speichern", "Store the minimum of U{n} in the statistics"}),
    value("stat_U{12,23,31}_max_enabled", {"Stat. U{n} Max. aktiv", "Stat. U{n} max. active"},
          {"Maximum von U{n} in der Statistik speichern", "Store the maximum of U{n} in the statistics"}),
    value("stat_{P,Q}{0..3}_max_enabled", {"Stat. {n}{m} Max. aktiv", "Stat. {n}{m} max. active"},
          {"Maximum von {n}{m} in der Statistik speichern", "Store the maximum of {n}{m} in the statistics"}),
    value("stat_{P,Q,S}_all_max_enabled", {"Stat. {n} ges. Max. aktiv", "Stat. {n} tot. max. active"},
          {"Maximum von {n} gesamt in der Statistik speichern",
           "Store the maximum of the total {n} in the statistics"}),
    value("stat_{P,Q}{0..3}_min_enabled", {"Stat. {n}{m} Min. aktiv", "Stat. {n}{m} min. active"},
          {"Minimum von {n}{m} in der Statistik speichern", "Store the minimum of {n}{m} in the statistics"}),
    value("stat_{P,Q}_all_min_enabled", {"Stat. {n} ges. Min. aktiv", "Stat. {n} tot. min. active"},
          {"Minimum von {n} gesamt in der Statistik speichern",
           "Store the minimum of the total {n} in the statistics"}),
    value("stat_{P,Q}{0..3}_av_enabled", {"Stat. {n}{m} Mittel aktiv", "Stat. {n}{m} avg. active"},
          {"Mittelwert von {n}{m} in der Statistik speichern",
           "Store the average of {n}{m} in the statistics"}),
    value("stat_{P,Q,S}_all_av_enabled", {"Stat. {n} ges. Mit. aktiv", "Stat. {n} tot. avg. active"},
          {"Mittelwert von {n} gesamt in der Statistik speichern",
           "Store the average of the total {n} in the statistics"}),
};

} // namespace talux::texts

#endif
