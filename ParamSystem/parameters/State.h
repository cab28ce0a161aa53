// Main screen, change flags and states that the programs of the device tell each other.
#ifndef TALUX_PARAMETERS_STATE_H
#define TALUX_PARAMETERS_STATE_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

inline constexpr Row kStateRows[] = {
    command(19000, "MainScreenText", {},
            {{"Hauptbild", "Text des Hauptbilds der Anzeige"},
             {"Main screen", "Text of the display's main screen"}}),
    number(6000, "ParamMagic", {.min = 0, .max = 1999999999, .is = kRuntime},
           {{"Parameterkennzahl"}, {"Parameter magic number"}}),
    flag(8000, "ParamChanged", {.is = kRuntime},
         {{"Parameter geändert", "Die Parameterdatei wurde gespeichert oder geladen"},
          {"Parameters changed", "The parameter file was saved or loaded"}}),
    flag(8001, "IpParamChanged", {.is = kRuntime},
         {{"IP-Parameter geändert", "Die Adressdatei wurde gespeichert, geladen oder zurückgesetzt"},
          {"IP settings changed", "The address file was saved, loaded or reset"}}),
    flag(8002, "SecParamChanged", {.is = kRuntime},
         {{"Sicherheit geändert", "Die Sicherheitsdatei wurde gespeichert oder geladen"},
          {"Security changed", "The security file was saved or loaded"}}),
    flag(8003, "ParamInit", {.is = kRuntime}, {{"Parameter initialisiert"}, {"Parameters initialised"}}),
    flag(8004, "StmParamChanged", {.is = kRuntime},
         {{"STM-Parameter geändert", "Einstellungen für STM wurden geändert"},
          {"STM settings changed", "Settings for STM were changed"}}),
    flag(8005, "MainScreen", {.is = kRuntime}, {{"Hauptbild aktiv"}, {"Main screen active"}}),
    flag(8006, "LedTest", {.is = kRuntime}, {{"LED-Test"}, {"LED test"}}),
    flag(8007, "LedSimulation", {.is = kRuntime}, {{"LED-Simulation"}, {"LED simulation"}}),
    number(6001, "ADC_samples", {.is = kRuntime}, {{"ADC-Abtastwerte"}, {"ADC samples"}}),
};

inline constexpr Note kStateNotes[] = {
    advice("ParamChanged IpParamChanged SecParamChanged StmParamChanged",
           "Änderungsmerker: Laden und Speichern setzen ihn, auch ein Laden, das scheitert (StmParamChanged "
           "setzt diese Bibliothek nie). Zurückgesetzt wird er von den übrigen Programmen des Geräts, von "
           "dieser Bibliothek nie.",
           "Change flag: loading and saving set it, even a load that fails (nothing in this library sets "
           "StmParamChanged). The device's other programs clear it; this library never does."),
    unknown("ParamMagic", "Die Bedeutung der Zahlen ist nicht dokumentiert.",
            "The meaning of the numbers is not documented."),
};

} // namespace talux::parameters

#endif
