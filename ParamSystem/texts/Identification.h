// Station, feeder, language, clock, and what the device tells about itself.
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
           "Name of the station where the device is installed"}),
    value("Abg", {"Abgangsname", "Feeder name"},
          {"Name des überwachten Abgangs", "Name of the monitored feeder"}),
    value("Kenn", {"Kennung", "Identifier"},
          {"Kurzzeichen des Geräts, höchstens drei Zeichen",
           "Short code of the device, at most three characters"}),
    choice("Language", {"Sprache", "Language"},
           {"Sprache der Anzeige und aller Texte", "Language of the display and of all texts"},
           {"Deutsch|Englisch", "German|English"}),
    value("Date", {"Datum", "Date"},
          {"Datum der Systemuhr; Schreiben stellt die Uhr",
           "Date of the system clock; writing sets the clock"}),
    value("Time", {"Uhrzeit", "Time"},
          {"Uhrzeit der Systemuhr; Schreiben stellt die Uhr",
           "Time of the system clock; writing sets the clock"}),

    value("MAC_adress", {"MAC-Adresse", "MAC address"},
          {"Hardware-Adresse der Ethernet-Schnittstelle ETH0",
           "Hardware address of the Ethernet interface ETH0"}),
    value("Kernel_version", {"Kernel-Version", "Kernel version"},
          {"Version des Betriebssystemkerns", "Version of the operating system kernel"}),
    value("rootfs_version", {"Dateisystem-Version", "Root filesystem version"},
          {"Version des Grunddateisystems mit den Systemprogrammen",
           "Version of the root file system with the system programs"}),
    value("FW_version", {"Firmware-Version", "Firmware version"},
          {"Version der Gerätesoftware", "Version of the device's software"}),
    value("Algo_version", {"Algorithmen-Version", "Algorithm version"},
          {"Version der Ortungsverfahren", "Version of the detection methods"}),
    value("Cortex_version", {"Messkern-Version", "Measuring core version"},
          {"Softwareversion des Messprozessors", "Software version of the measuring processor"}),
    value("XML_version", {"XML-Version", "XML version"},
          {"Version der Gerätebeschreibung für die Parametriersoftware",
           "Version of the device description for the configuration software"}),
    value("Status_art_no", {"Artikelnummer", "Article number"},
          {"Artikelnummer der Gerätevariante", "Article number of the device variant"}),
    value("Status_ser_no", {"Seriennummer", "Serial number"},
          {"Fertigungsnummer dieses Geräts", "Production number of this device"}),
    value("Status_ord_no", {"Auftragsnummer", "Order number"},
          {"Auftrag, unter dem das Gerät geliefert wurde", "Order under which the device was delivered"}),
    value("Status_dat", {"Prüfdatum", "Test date"},
          {"Tag der Endprüfung im Werk", "Day of the final test in the factory"}),
    value("Status_ins", {"Prüfer", "Inspector"},
          {"Kürzel des Prüfers der Endprüfung", "Initials of the inspector of the final test"}),
    value("Status_sdcard", {"SD-Karte", "SD card"},
          {"Zustand der eingelegten SD-Karte", "State of the inserted SD card"}),
    value("Status_rtc", {"Echtzeituhr", "Real-time clock"},
          {"Zustand der batteriegepufferten Uhr", "State of the battery-backed clock"}),
};

} // namespace talux::texts

#endif
