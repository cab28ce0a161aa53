// Fault recorder.
#ifndef TALUX_TEXTS_RECORDER_H
#define TALUX_TEXTS_RECORDER_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kRecorder[] = {
    value("rec_pretrig_per", {"Vorgeschichte", "Pre-trigger"},
          {"Netzperioden, die vor dem Auslösen aufgezeichnet werden",
           "Grid periods that are recorded before the trigger"}),
    value("rec_posttrig_t", {"Nachlaufzeit", "Post-trigger time"},
          {"Aufzeichnungsdauer nach dem Auslösen durch einen Erdschluss",
           "Recording time after a trigger by an earth fault"},
          "ms"),
    value("rec_retrig_t", {"Wiederauslösezeit", "Retrigger time"},
          {"Zeit, nach der ein anstehender Fehler erneut auslöst; -1 = nie",
           "Time after which a persisting fault triggers again; -1 = never"},
          "ms"),
    value("rec_retrig_dur", {"Dauer Wiederauslösung", "Retrigger duration"},
          {"Aufzeichnungsdauer nach einem erneuten Auslösen", "Recording time after a trigger that repeats"},
          "ms"),
    value("sc_posttrig_C{1..2}", {"Nachlauf Klasse {n}", "Post-trigger class {n}"},
          {"Aufzeichnungsdauer nach einem Kurzschluss der Klasse {n}",
           "Recording time after a short circuit of class {n}"},
          "ms"),
    value("max_cnt_rec", {"Anzahl Aufzeichnungen", "Number of records"},
          {"Aufzeichnungen, die höchstens aufgehoben werden", "Records that are kept at most"}),
};

} // namespace talux::texts

#endif
