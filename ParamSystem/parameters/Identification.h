// Station, language and clock, and what the device tells about itself.
#ifndef TALUX_PARAMETERS_IDENTIFICATION_H
#define TALUX_PARAMETERS_IDENTIFICATION_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

inline constexpr Row kIdentificationRows[] = {
    command(19001, "VarSaveParams", {.userlevel = 2, .firstResult = 0},
            {{"Parameter übernehmen", "Neue Einstellungen übernehmen und speichern", "Bitte warten...",
              "Fehler bei der\nÜbertragung|Erfolgreich\ngespeichert"},
             {"Apply new parameters", "Make new settings live and save them", "Please wait...",
              "Error during\ntransfer|Successful\nsaved"}}),
    text(9000, "Name", {.length = 40, .def = "DEF-NAME", .is = kIndividual},
         {{"Stationsname", "Name der Station, in der das Gerät eingebaut ist"},
          {"Station name", "Name of the station where the device is installed"}}),
    text(9001, "Abg", {.length = 40, .def = "DEF-ABG", .is = kIndividual},
         {{"Abgangsname", "Name des überwachten Abgangs"}, {"Feeder name", "Name of the monitored feeder"}}),
    identifier(15000, "Kenn", {.length = 3, .def = "A:", .is = kIndividual},
               {{"Kennung", "Kurzzeichen des Geräts, höchstens drei Zeichen"},
                {"Identifier", "Short code of the device, at most three characters"}}),
    choice(10000, "Language", {.names = "German|English", .min = 1},
           {{"Sprache", "Sprache der Anzeige und der Parametertexte", "Deutsch|Englisch"},
            {"Language", "Language of the display and of the parameter texts", "German|English"}}),
    clockDate(13000, "Date",
              {{"Datum", "Datum der Systemuhr; Schreiben stellt die Uhr"},
               {"Date", "Date of the system clock; writing sets the clock"}}),
    clockTime(14000, "Time",
              {{"Uhrzeit", "Uhrzeit der Systemuhr; Schreiben stellt die Uhr"},
               {"Time", "Time of the system clock; writing sets the clock"}}),
    text(9002, "MAC_adress", {.length = 20, .is = kUnwritable | kIndividual},
         {{"MAC-Adresse", "Hardware-Adresse des Geräts im Ethernet"},
          {"MAC address", "Hardware address of the device on the Ethernet"}}),
    text(9003, "Kernel_version", {.length = 40, .is = kUnwritable},
         {{"Kernel-Version", "Version des Betriebssystemkerns"},
          {"Kernel version", "Version of the operating system kernel"}}),
    text(9004, "rootfs_version", {.length = 40, .is = kUnwritable},
         {{"Dateisystem-Version", "Version des Grunddateisystems mit den Systemprogrammen"},
          {"Root filesystem version", "Version of the root file system with the system programs"}}),
    text(9005, "FW_version", {.length = 40, .is = kUnwritable},
         {{"Firmware-Version", "Version der Gerätesoftware"},
          {"Firmware version", "Version of the device's software"}}),
    text(9006, "Algo_version", {.length = 40, .is = kUnwritable},
         {{"Algorithmen-Version", "Version der Auswerteverfahren"},
          {"Algorithm version", "Version of the evaluation methods"}}),
    text(
        9007, "Cortex_version", {.length = 40, .is = kUnwritable},
        {{"Cortex-Version", "Softwareversion von Cortex"}, {"Cortex version", "Software version of Cortex"}}),
    text(9008, "XML_version", {.length = 40, .is = kUnwritable},
         {{"XML-Version", "Version der XML-Beschreibung des Geräts"},
          {"XML version", "Version of the device's XML description"}}),
    text(9009, "Status_art_no", {.length = 40, .is = kUnwritable}, {{"Artikelnummer"}, {"Article number"}}),
    text(9010, "Status_ser_no", {.length = 40, .is = kUnwritable | kIndividual},
         {{"Seriennummer"}, {"Serial number"}}),
    text(9011, "Status_ord_no", {.length = 40, .is = kUnwritable | kIndividual},
         {{"Auftragsnummer"}, {"Order number"}}),
    text(9012, "Status_dat", {.length = 40, .is = kUnwritable | kIndividual}, {{"Prüfdatum"}, {"Test date"}}),
    text(9013, "Status_ins", {.length = 40, .is = kUnwritable | kIndividual}, {{"Prüfer"}, {"Inspector"}}),
    text(9014, "Status_sdcard", {.length = 7, .is = kUnwritable | kRuntime},
         {{"Zustand SD-Karte"}, {"State of SD card"}}),
    text(9015, "Status_rtc", {.length = 7, .is = kUnwritable | kRuntime},
         {{"Zustand Echtzeituhr"}, {"State of real-time clock"}}),
};

} // namespace talux::parameters

#endif
