// Binary inputs, user functions, relays and LEDs.
#ifndef TALUX_PARAMETERS_BINARY_IO_H
#define TALUX_PARAMETERS_BINARY_IO_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

// Texts that several rows share.
inline constexpr Words kBIPolarity{
    {"Polarität BE{n}", "+ meldet bei anliegender Spannung, - bei fehlender Spannung am Binäreingang {n}"},
    {"BI{n} polarity", "+ signals if there is voltage at binary input {n}, - if there is none"}};
inline constexpr Words kBIInputFactor{
    {"Eingangsfaktor BE{n}", "Faktor der Spannungsmessung am Binäreingang {n}"},
    {"BI{n} input factor", "Factor of the voltage measurement at binary input {n}"}};
inline constexpr Words kBIOffset{
    {"Nullpunkt BE{n}", "Nullpunktkorrektur der Spannungsmessung am Binäreingang {n}"},
    {"BI{n} offset", "Zero correction of the voltage measurement at binary input {n}"}};
inline constexpr Words kBIDCPickUp{
    {"Ansprechwert DC BE{n}", "Gleichspannung, ab der Binäreingang {n} als eingeschaltet gilt"},
    {"BI{n} DC pick-up", "DC voltage above which binary input {n} counts as on"}};
inline constexpr Words kBIDCDropOut{
    {"Rückfallwert DC BE{n}", "Gleichspannung, unter der Binäreingang {n} als ausgeschaltet gilt"},
    {"BI{n} DC drop-out", "DC voltage below which binary input {n} counts as off"}};
inline constexpr Words kBIACPickUp{
    {"Ansprechwert AC BE{n}", "Wechselspannung, ab der Binäreingang {n} als eingeschaltet gilt"},
    {"BI{n} AC pick-up", "AC voltage above which binary input {n} counts as on"}};
inline constexpr Words kBIACDropOut{
    {"Rückfallwert AC BE{n}", "Wechselspannung, unter der Binäreingang {n} als ausgeschaltet gilt"},
    {"BI{n} AC drop-out", "AC voltage below which binary input {n} counts as off"}};
inline constexpr Words kRelayFunction{
    {"Funktion Relais {n}", "Ausgangsfunktion, die das Relais {n} ansteuert"},
    {"Relay {n} function", "Output function that drives relay {n}"}};
inline constexpr Words kRelayPolarity{
    {"Polarität Relais {n}", "+ lässt Relais {n} bei aktiver Funktion anziehen, - betreibt es im Ruhestrom"},
    {"Relay {n} polarity",
     "+ energises relay {n} while its function is active, - while it is not (normally energised)"}};
inline constexpr Words kLEDFunction{{"Funktion LED {n}", "Ausgangsfunktion, die LED {n} anzeigt"},
                                    {"LED {n} function", "Output function that LED {n} shows"}};
inline constexpr Words kPolarityLED{
    {"Polarität LED {n}", "+ lässt LED {n} bei aktiver Funktion leuchten, - bei inaktiver", "+|-"},
    {"Polarity LED {n}", "+ lights LED {n} while its function is active, - while it is not", "+|-"}};

inline constexpr Row kBinaryIORows[] = {
    choice(10060, "BEpol1", {.like = kInputPolarity}, kBIPolarity("1")),
    decimal(2134, "BE_knuV_1", {.def = 0.1618, .is = kIndividual}, kBIInputFactor("1")),
    decimal(2135, "BE_Offset_1", {.unit = "V", .is = kIndividual}, kBIOffset("1")),
    decimal(2136, "BE_DC_on_1", {.def = 40, .min = 18, .max = 300, .unit = "V"}, kBIDCPickUp("1")),
    decimal(2137, "BE_DC_off_1", {.def = 30, .min = 18, .max = 300, .unit = "V"}, kBIDCDropOut("1")),
    decimal(2138, "BE_AC_on_1", {.def = 40, .min = 18, .max = 300, .unit = "V"}, kBIACPickUp("1")),
    decimal(2139, "BE_AC_off_1", {.def = 30, .min = 18, .max = 300, .unit = "V"}, kBIACDropOut("1")),
    choice(10061, "BEpol2", {.like = kInputPolarity}, kBIPolarity("2")),
    decimal(2140, "BE_knuV_2", {.def = 0.1618, .is = kIndividual}, kBIInputFactor("2")),
    decimal(2141, "BE_Offset_2", {.unit = "V", .is = kIndividual}, kBIOffset("2")),
    decimal(2142, "BE_DC_on_2", {.def = 40, .min = 18, .max = 300, .unit = "V"}, kBIDCPickUp("2")),
    decimal(2143, "BE_DC_off_2", {.def = 30, .min = 18, .max = 300, .unit = "V"}, kBIDCDropOut("2")),
    decimal(2144, "BE_AC_on_2", {.def = 40, .min = 18, .max = 300, .unit = "V"}, kBIACPickUp("2")),
    decimal(2145, "BE_AC_off_2", {.def = 30, .min = 18, .max = 300, .unit = "V"}, kBIACDropOut("2")),
    choice(10062, "BEpol{3..6}", {.like = kInputPolarity}, kBIPolarity),
    choice(10066, "BEFassign{1..16}", {.like = kInputFunction},
           {{"Eingangsfunktion {n}",
             "Physischer oder virtueller Binäreingang, der die Eingangsfunktion {n} auslöst"},
            {"Input function {n}", "Physical or virtual binary input that triggers input function {n}"}}),
    text(9033, "uBAF{1..8}", {.length = 128, .of = {kOtherFunctions, kSetting}},
         {{"Benutzerfunktion {n}", "Text der Ausgangsfunktion {n} des Benutzers (user_BAF{n})"},
          {"User function {n}", "Text of output function {n} of the user (user_BOF{n})"}}),

    choice(10082, "BAassign1", {.like = kOutputFunction, .def = 3}, kRelayFunction("1")),
    choice(10083, "BApol1", {.like = kOutputPolarity}, kRelayPolarity("1")),
    choice(10084, "BAassign2", {.like = kOutputFunction, .def = 1}, kRelayFunction("2")),
    choice(10085, "BApol2", {.like = kOutputPolarity}, kRelayPolarity("2")),
    choice(10086, "BAassign3", {.like = kOutputFunction, .def = 26}, kRelayFunction("3")),
    choice(10087, "BApol3", {.like = kOutputPolarity}, kRelayPolarity("3")),
    choice(10088, "BAassign4", {.like = kOutputFunction, .def = 27}, kRelayFunction("4")),
    choice(10089, "BApol4", {.like = kOutputPolarity}, kRelayPolarity("4")),
    choice(10090, "BAassign5", {.like = kOutputFunction, .def = 1}, kRelayFunction("5")),
    choice(10091, "BApol5", {.like = kOutputPolarity}, kRelayPolarity("5")),
    choice(10092, "BAassign6", {.like = kOutputFunction, .def = 1}, kRelayFunction("6")),
    choice(10093, "BApol6", {.like = kOutputPolarity}, kRelayPolarity("6")),
    choice(10094, "BAassign7", {.like = kOutputFunction, .def = 1}, kRelayFunction("7")),
    choice(10095, "BApol7", {.like = kOutputPolarity}, kRelayPolarity("7")),
    choice(10096, "BAassign8", {.like = kOutputFunction, .def = 1}, kRelayFunction("8")),
    choice(10097, "BApol8", {.like = kOutputPolarity}, kRelayPolarity("8")),

    choice(10098, "LEDassign1", {.like = kOutputFunction, .def = 18}, kLEDFunction("1")),
    choice(10099, "LEDpol1", {.names = "Plus|Minus"}, kPolarityLED("1")),
    choice(10100, "LEDassign2", {.like = kOutputFunction, .def = 5}, kLEDFunction("2")),
    choice(10101, "LEDpol2", {.names = "Plus|Minus"}, kPolarityLED("2")),
    choice(10102, "LEDassign3", {.like = kOutputFunction, .def = 19}, kLEDFunction("3")),
    choice(10103, "LEDpol3", {.names = "Plus|Minus"}, kPolarityLED("3")),
    choice(10104, "LEDassign4", {.like = kOutputFunction, .def = 6}, kLEDFunction("4")),
    choice(10105, "LEDpol4", {.names = "Plus|Minus"}, kPolarityLED("4")),
    choice(10106, "LEDassign5", {.like = kOutputFunction, .def = 20}, kLEDFunction("5")),
    choice(10107, "LEDpol5", {.names = "Plus|Minus"}, kPolarityLED("5")),
    choice(10108, "LEDassign6", {.like = kOutputFunction, .def = 7}, kLEDFunction("6")),
    choice(10109, "LEDpol6", {.names = "Plus|Minus"}, kPolarityLED("6")),
    choice(10110, "LEDassign7", {.like = kOutputFunction, .def = 16}, kLEDFunction("7")),
    choice(10111, "LEDpol7", {.names = "Plus|Minus"}, kPolarityLED("7")),
    choice(10112, "LEDassign8", {.like = kOutputFunction, .def = 16}, kLEDFunction("8")),
    choice(10113, "LEDpol8", {.names = "Plus|Minus", .def = 2}, kPolarityLED("8")),
    choice(10114, "LEDassign9", {.like = kOutputFunction, .def = 1}, kLEDFunction("9")),
    choice(10115, "LEDpol9", {.names = "Plus|Minus"}, kPolarityLED("9")),
    choice(10116, "LEDassign10", {.like = kOutputFunction, .def = 1}, kLEDFunction("10")),
    choice(10117, "LEDpol10", {.names = "Plus|Minus"}, kPolarityLED("10")),
    flag(8073, "log_LED", {},
         {{"LEDs protokollieren", "Änderungen der LEDs in das Logbuch schreiben"},
          {"Log LEDs", "Write changes of the LEDs to the logbook"}}),
};

inline constexpr Note kBinaryIONotes[] = {
    unknown("BEFassign{1..16}",
            "Was die 16 Eingangsfunktionen auslösen, ist nicht dokumentiert; vor dem Zuordnen klären.",
            "What the 16 input functions trigger is not documented; find out before assigning one."),
    advice("BE_DC_on_{1..2} BE_DC_off_{1..2} BE_AC_on_{1..2} BE_AC_off_{1..2}",
           "Dass der Rückfallwert unter dem Ansprechwert liegt, wird nicht geprüft.",
           "Nothing checks that the drop-out value is below the pick-up value."),
    unknown(
        "uBAF{1..8}",
        "Ob der Text ein Name oder eine Verknüpfung ist und wie eine solche geschrieben wird, ist nicht "
        "dokumentiert.",
        "Whether the text is a name or an expression, and how an expression is written, is not documented."),
};

} // namespace talux::parameters

#endif
