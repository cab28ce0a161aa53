// Station, feeder, language, clock, and what the device reports about itself.
#ifndef TALUX_TEXTS_IDENTIFICATION_H
#define TALUX_TEXTS_IDENTIFICATION_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kIdentification[] = {
    command(
        "VarSaveParams", {"Parameter übernehmen", "Apply new parameters"},
        {"Neue Einstellungen übernehmen und speichern", "Make new settings live and save them"},
        {"Bitte warten...", "Please wait..."},
        {"Fehler bei der\nÜbertragung|Erfolgreich\ngespeichert", "Error during\ntransfer|Successful\nsaved"},
        0),
    value("Name", {"Stationsname", "Station name"},
          {"Name der Station, in der das Gerät eingebaut ist",
           "Name of the station where the device is installed"}),
    value("Abg", {"Abgangsname", "Feeder name"},
          {"Name des überwachten Abgangs", "Name of the monitored feeder"}),
    value("Kenn", {"Kennung", "Identifier"},
          {"Kurzzeichen des Geräts, höchstens drei Zeichen",
           "Short code of the device, at most three characters"}),
    choice(
        "Language", {"Sprache", "Language"},
        {"Sprache der Anzeige und der Parametertexte", "Language of the display and of the parameter texts"},
        {"Deutsch|Englisch", "German|English"}),
    value("Date", {"Datum", "Date"},
          {"Datum der Systemuhr; Schreiben stellt die Uhr",
           "Date of the system clock; writing sets the clock"}),
    value("Time", {"Uhrzeit", "Time"},
          {"Uhrzeit der Systemuhr; Schreiben stellt die Uhr",
           "Time of the system clock; writing sets the clock"}),

    value("MAC_adress", {"MAC-Adresse", "MAC address"},
          {"Hardware-Adresse des Geräts im Ethernet", "Hardware address of the device on the Ethernet"}),
    value("Kernel_version", {"Kernel-Version", "Kernel version"},
          {"Version des Betriebssystemkerns", "Version of the operating system kernel"}),
    value("rootfs_version", {"Dateisystem-Version", "Root filesystem version"},
          {"Version des Grunddateisystems mit den Systemprogrammen",
           "Version of the root file system with the system programs"}),
    value("FW_version", {"Firmware-Version", "Firmware version"},
          {"Version der Gerätesoftware", "Version of the device's software"}),
    value("Algo_version", {"Algorithmen-Version", "Algorithm version"},
          {"Version der Auswerteverfahren", "Version of the evaluation methods"}),
    value("Cortex_version", {"Cortex-Version", "Cortex version"},
          {"Softwareversion von Cortex", "Software version of Cortex"}),
    value("XML_version", {"XML-Version", "XML version"},
          {"Version der XML-Beschreibung des Geräts", "Version of the device's XML description"}),
    label("Status_art_no", {"Artikelnummer", "Article number"}),
    label("Status_ser_no", {"Seriennummer", "Serial number"}),
    label("Status_ord_no", {"Auftragsnummer", "Order number"}),
    label("Status_dat", {"Prüfdatum", "Test date"}),
    label("Status_ins", {"Prüfer", "Inspector"}),
    label("Status_sdcard", {"Zustand SD-Karte", "State of SD card"}),
    label("Status_rtc", {"Zustand Echtzeituhr", "State of real-time clock"}),
};

} // namespace talux::texts

#endif
