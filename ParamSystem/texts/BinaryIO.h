// Binary inputs, user functions, relays and LEDs.
#ifndef TALUX_TEXTS_BINARYIO_H
#define TALUX_TEXTS_BINARYIO_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kBinaryIO[] = {
    value("BEpol{1..6}", {"Polarität BE{n}", "BI{n} polarity"},
          {"+ meldet bei anliegender Spannung, - bei fehlender Spannung am Binäreingang {n}",
           "+ signals if there is voltage at binary input {n}, - if there is none"}),
    value("BE_knuV_{1..2}", {"Eingangsfaktor BE{n}", "BI{n} input factor"},
          {"Faktor der Spannungsmessung am Binäreingang {n}",
           "Factor of the voltage measurement at binary input {n}"}),
    value("BE_Offset_{1..2}", {"Nullpunkt BE{n}", "BI{n} offset"},
          {"Nullpunktkorrektur der Spannungsmessung am Binäreingang {n}",
           "Zero correction of the voltage measurement at binary input {n}"},
          "V"),
    value("BE_DC_on_{1..2}", {"Ansprechwert DC BE{n}", "BI{n} DC pick-up"},
          {"Gleichspannung, ab der Binäreingang {n} als eingeschaltet gilt",
           "DC voltage above which binary input {n} counts as on"},
          "V"),
    value("BE_DC_off_{1..2}", {"Rückfallwert DC BE{n}", "BI{n} DC drop-out"},
          {"Gleichspannung, unter der Binäreingang {n} als ausgeschaltet gilt",
           "DC voltage below which binary input {n} counts as off"},
          "V"),
    value("BE_AC_on_{1..2}", {"Ansprechwert AC BE{n}", "BI{n} AC pick-up"},
          {"Wechselspannung, ab der Binäreingang {n} als eingeschaltet gilt",
           "AC voltage above which binary input {n} counts as on"},
          "V"),
    value("BE_AC_off_{1..2}", {"Rückfallwert AC BE{n}", "BI{n} AC drop-out"},
          {"Wechselspannung, unter der Binäreingang {n} als ausgeschaltet gilt",
           "AC voltage below which binary input {n} counts as off"},
          "V"),
    value("BEFassign{1..16}", {"Eingangsfunktion {n}", "Input function {n}"},
          {"Physischer oder virtueller Binäreingang, der die Eingangsfunktion {n} auslöst",
           "Physical or virtual binary input that triggers input function {n}"}),
    value("uBAF{1..8}", {"Benutzerfunktion {n}", "User function {n}"},
          {"Text der Ausgangsfunktion {n} des Benutzers (user_BAF{n})",
           "Text of output function {n} of the user (user_BOF{n})"}),
    value("BAassign{1..8}", {"Funktion Relais {n}", "Relay {n} function"},
          {"Ausgangsfunktion, die das Relais {n} ansteuert", "Output function that drives relay {n}"}),
    value("BApol{1..8}", {"Polarität Relais {n}", "Relay {n} polarity"},
          {"+ lässt Relais {n} bei aktiver Funktion anziehen, - betreibt es im Ruhestrom",
           "+ energises relay {n} while its function is active, - while it is not (normally energised)"}),
    value("LEDassign{1..10}", {"Funktion LED {n}", "LED {n} function"},
          {"Ausgangsfunktion, die LED {n} anzeigt", "Output function that LED {n} shows"}),
    choice("LEDpol{1..10}", {"Polarität LED {n}", "Polarity LED {n}"},
           {"+ lässt LED {n} bei aktiver Funktion leuchten, - bei inaktiver",
            "+ lights LED {n} while its function is active, - while it is not"},
           {"+|-", "+|-"}),
    value("log_LED", {"LEDs protokollieren", "Log LEDs"},
          {"Änderungen der LEDs in das Logbuch schreiben", "Write changes of the LEDs to the logbook"}),
};

} // namespace talux::texts

#endif
