// Station, feeder, language, clock.
#ifndef TALUX_TEXTS_IDENTIFICATION_H
#define TALUX_TEXTS_IDENTIFICATION_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kIdentification[] = {
    command(
        "VarSaveParams", {"Parameter übernehmen", "Apply new parameters"},
        {"Geänderte Einstellungen in Kraft setzen und in die Parameterdatei schreiben",
         "Put changed settings in force and write them to the parameter file"},
        {"Bitte warten...", "Please wait..."},
        {"Fehler bei der\nÜbertragung|Erfolgreich\ngespeichert", "Error during\ntransfer|Successful\nsaved"},
        0),
    value("Name", {"Stationsname", "Station name"},
          {"Name der Station, in der das Gerät eingebaut ist",
           "Name of the station that the device is installed in"}),
    value("Abg", {"Abgangsname", "Feeder name"},
          {"Name des überwachten Abgangs", "Name of the monitored feeder"}),
    value("Kenn", {"Kennung", "Identifier"},
          {"Kurzzeichen des Geräts, drei Zeichen", "Short mark of the device, three characters"}),
    choice("Language", {"Sprache", "Language"},
           {"Sprache der Anzeige und aller Texte", "Language of the display and of all texts"},
           {"Deutsch|Englisch", "German|English"}),
    value("Date", {"Datum", "Date"},
          {"Datum der Systemuhr; Schreiben stellt die Uhr",
           "Date of the system clock; writing sets the clock"}),
    value("Time", {"Uhrzeit", "Time"},
          {"Uhrzeit der Systemuhr; Schreiben stellt die Uhr",
           "Time of the system clock; writing sets the clock"}),
};

} // namespace talux::texts

#endif
