// Main screen, change flags and states that the programs of the device tell each other.
#ifndef TALUX_TEXTS_STATE_H
#define TALUX_TEXTS_STATE_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kState[] = {
    command("MainScreenText", {"Hauptbild", "Main screen"},
            {"Text des Hauptbilds der Anzeige", "Text of the display's main screen"}),
    value("ParamMagic", {"Parameterkennzahl", "Parameter magic number"},
          {"Zahl, an der die Programme einen gültigen Parametersatz erkennen",
           "Number by which the programs recognise a valid parameter set"}),
    value("ParamChanged", {"Parameter geändert", "Parameters changed"},
          {"Neue Einstellungen gelten; die Programme des Geräts lesen sie neu",
           "New settings are in force; the device's programs read them again"}),
    value("IpParamChanged", {"IP-Parameter geändert", "IP settings changed"},
          {"Die Netzwerkdatei wurde geschrieben oder geladen", "The network file was written or loaded"}),
    value("SecParamChanged", {"Sicherheit geändert", "Security changed"},
          {"Sicherheitseinstellungen wurden gespeichert oder geladen",
           "Security settings were saved or loaded"}),
    value("ParamInit", {"Parameter bereit", "Parameters ready"},
          {"Die Einstellungen wurden nach dem Start geladen", "The settings were loaded after start-up"}),
    value("StmParamChanged", {"Messkern: neue Werte", "Measuring core: new data"},
          {"Einstellungen des Messkerns wurden geändert und sind zu übertragen",
           "Settings of the measuring core were changed and have to be transferred"}),
    value("MainScreen", {"Hauptbild aktiv", "Main screen active"},
          {"Die Anzeige steht auf dem Hauptbild", "The display shows the main screen"}),
    value("LedTest", {"LED-Test", "LED test"},
          {"Alle LEDs zur Prüfung einschalten", "Switch all LEDs on as a test"}),
    value("LedSimulation", {"LED-Simulation", "LED simulation"},
          {"LEDs zeigen simulierte statt gemessener Zustände",
           "LEDs show simulated states instead of measured ones"}),
    value("ADC_samples", {"ADC-Abtastwerte", "ADC samples"},
          {"Anzahl der Abtastwerte des Analog-Digital-Wandlers",
           "Number of samples taken by the analog-to-digital converter"}),
};

} // namespace talux::texts

#endif
