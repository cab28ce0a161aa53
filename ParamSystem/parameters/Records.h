// Binary records of the struct segment; their members are laid out in dictionary/Records.cpp.
#ifndef TALUX_PARAMETERS_RECORDS_H
#define TALUX_PARAMETERS_RECORDS_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

inline constexpr Row kRecordsRows[] = {
    record(30000, "MessRecord01",
           {{"Messdatensatz 1", "Spannungen, Ströme, Winkel, Leistungen und Frequenz"},
            {"Measurement record 1", "Voltages, currents, angles, powers and frequency"}}),
    record(30001, "MessRecord02",
           {{"Messdatensatz 2", "Oberschwingungen, Spannungen der Binäreingänge und Zustandswörter"},
            {"Measurement record 2", "Harmonics, voltages of the binary inputs and state words"}}),
    record(30002, "StatRecord_c0",
           {{"Statistiksatz", "Größt-, Kleinst- und Mittelwerte der Statistik"},
            {"Statistics record", "Maxima, minima and averages of the statistics"}}),
};

inline constexpr Note kRecordsNotes[] = {
    unknown("MessRecord{01,02} StatRecord_c0",
            "Einheiten und Takt der Datensätze sind nicht dokumentiert; die Namen folgen den Messwerten "
            "gleicher Art.",
            "Units and update rate of the records are not documented; the names follow the measured values "
            "of the same kind."),
};

} // namespace talux::parameters

#endif
