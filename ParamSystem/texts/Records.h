// The structured records.
#ifndef TALUX_TEXTS_RECORDS_H
#define TALUX_TEXTS_RECORDS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kRecords[] = {
    value("MessRecord01", {"Messdatensatz 1", "Measurement record 1"},
          {"Zeitgleicher Satz der Spannungen, Ströme, Winkel und Leistungen",
           "Set of voltages, currents, angles and powers of one moment"}),
    value("MessRecord02", {"Messdatensatz 2", "Measurement record 2"},
          {"Zeitgleicher Satz der Oberschwingungen, Eingangsspannungen und Zustände",
           "Set of harmonics, input voltages and states of one moment"}),
    value("StatRecord_c0", {"Statistiksatz", "Statistics record"},
          {"Größt-, Kleinst- und Mittelwerte des letzten Statistikintervalls",
           "Maxima, minima and averages of the last statistics interval"}),
};

} // namespace talux::texts

#endif
