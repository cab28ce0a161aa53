// The structured records.
#ifndef TALUX_TEXTS_RECORDS_H
#define TALUX_TEXTS_RECORDS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kRecords[] = {
    value("MessRecord01", {"Messdatensatz 1", "Measurement record 1"},
          {"Spannungen, Ströme, Winkel, Leistungen und Frequenz",
           "Voltages, currents, angles, powers and frequency"}),
    value("MessRecord02", {"Messdatensatz 2", "Measurement record 2"},
          {"Oberschwingungen, Spannungen der Binäreingänge und Zustandswörter",
           "Harmonics, voltages of the binary inputs and state words"}),
    value(
        "StatRecord_c0", {"Statistiksatz", "Statistics record"},
        {"Größt-, Kleinst- und Mittelwerte der Statistik", "Maxima, minima and averages of the statistics"}),
};

} // namespace talux::texts

#endif
