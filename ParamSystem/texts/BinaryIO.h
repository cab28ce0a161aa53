// Binary inputs, user functions, relays and LEDs.
#ifndef TALUX_TEXTS_BINARYIO_H
#define TALUX_TEXTS_BINARYIO_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kBinaryIO[] = {
    value("BEpol{1..6}", {"Polarität BE{n}", "Polarity BI{n}"},
          {"+ meldet bei anliegender Spannung, - bei fehlender Spannung am Binäreingang {n}",
           "+ signals with voltage at binary input {n}, - signals without"}),
    value("BE_knuV_{1..2}", {"Eingangsfaktor BE{n}", "Input factor BI{n}"},
          {"Abgleichfaktor der Spannungsmessung am Binäreingang {n}",
           "Calibration factor of the voltage measurement at binary input {n}"}),
    value("BE_Offset_{1..2}", {"Nullpunkt BE{n}", "Offset BI{n}"},
          {"Wird von der gemessenen Spannung am Binäreingang {n} abgezogen",
           "Is subtracted from the voltage measured at binary input {n}"},
          "V"),
    value("BE_DC_on_{1..2}", {"Ansprechwert DC BE{n}", "Pick-up DC BI{n}"},
          {"Gleichspannung, ab der Binäreingang {n} als eingeschaltet gilt",
           "DC voltage above which binary input {n} counts as on"},
          "V"),
    value("BE_DC_off_{1..2}", {"Rückfallwert DC BE{n}", "Drop-out DC BI{n}"},
          {"Gleichspannung, unter der Binäreingang {n} als ausgeschaltet gilt",
           "DC voltage below which binary input {n} counts as off"},
          "V"),
    value("BE_AC_on_{1..2}", {"Ansprechwert AC BE{n}", "Pick-up AC BI{n}"},
          {"Wechselspannung, ab der Binäreingang {n} als eingeschaltet gilt",
           "AC voltage above which binary input {n} counts as on"},
          "V"),
    value("BE_AC_off_{1..2}", {"Rückfallwert AC BE{n}", "Drop-out AC BI{n}"},
          {"Wechselspannung, unter der Binäreingang {n} als ausgeschaltet gilt",
           "AC voltage below which binary input {n} counts as off"},
          "V"),
    value("BEFassign{1..16}", {"Eingangsfunktion {n}", "Input function {n}"},
          {"Physischer oder virtueller Binäreingang, der die Eingangsfunktion {n} auslöst",
           "Physical or virtual binary input that triggers input function {n}"}),
    value("uBAF{1..8}", {"Benutzerfunktion {n}", "User function {n}"},
          {"Verknüpfung, aus der die freie Ausgangsfunktion {n} gebildet wird",
           "Logic expression that forms the free output function {n}"}),
    value("BAassign{1..8}", {"Funktion Relais {n}", "Function relay {n}"},
          {"Ausgangsfunktion, die das Relais {n} ansteuert", "Output function that drives relay {n}"}),
    value("BApol{1..8}", {"Polarität Relais {n}", "Polarity relay {n}"},
          {"+ zieht bei aktiver Funktion an, - arbeitet im Ruhestrom",
           "+ picks up with an active function, - works normally energised"}),
    value("LEDassign{1..10}", {"Funktion LED {n}", "Function LED {n}"},
          {"Ausgangsfunktion, die die Leuchtdiode {n} anzeigt", "Output function that LED {n} shows"}),
    choice("LEDpol{1..10}", {"Polarität LED {n}", "Polarity LED {n}"},
           {"+ leuchtet bei aktiver Funktion, - bei inaktiver",
            "+ lights with an active function, - with an inactive one"},
           {"+|-", "+|-"}),
    value("log_LED", {"LEDs protokollieren", "Log LEDs"},
          {"Jede Änderung der Leuchtdioden in das Logbuch schreiben",
           "Write every change of the LEDs to the logbook"}),
};

} // namespace talux::texts

#endif
