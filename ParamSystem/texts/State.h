// Main screen, change flags and states that the programs of the device share.
#ifndef TALUX_TEXTS_STATE_H
#define TALUX_TEXTS_STATE_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kState[] = {
    command("MainScreenText", {"Hauptbild", "Main screen"},
            {"Text des Hauptbilds der Anzeige", "Text of the display's main screen"}),
    label("ParamMagic", {"Parameterkennzahl", "Parameter magic number"}),
    value("ParamChanged", {"Parameter geändert", "Parameters changed"},
          {"Die Parameterdatei wurde gespeichert oder geladen", "The parameter file was saved or loaded"}),
    value("IpParamChanged", {"IP-Parameter geändert", "IP settings changed"},
          {"Die Adressdatei wurde gespeichert, geladen oder zurückgesetzt",
           "The address file was saved, loaded or reset"}),
    value("SecParamChanged", {"Sicherheit geändert", "Security changed"},
          {"Die Sicherheitsdatei wurde gespeichert oder geladen", "The security file was saved or loaded"}),
    label("ParamInit", {"Parameter initialisiert", "Parameters initialised"}),
    value("StmParamChanged", {"STM-Parameter geändert", "STM settings changed"},
          {"Einstellungen für STM wurden geändert", "Settings for STM were changed"}),
    label("MainScreen", {"Hauptbild aktiv", "Main screen active"}),
    label("LedTest", {"LED-Test", "LED test"}),
    label("LedSimulation", {"LED-Simulation", "LED simulation"}),
    label("ADC_samples", {"ADC-Abtastwerte", "ADC samples"}),
};

} // namespace talux::texts

#endif
