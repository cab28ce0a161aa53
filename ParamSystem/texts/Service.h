// Transfers to and from a USB stick, logbooks, display test.
#ifndef TALUX_TEXTS_SERVICE_H
#define TALUX_TEXTS_SERVICE_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr Both kWait{"Bitte warten...", "Please wait..."};

// Results of a transfer to a USB stick.
inline constexpr Both kUsbResults{
    "Speicher voll|Nicht genug\nSpeicher|Übertragung\nerfolgreich|Kein USB-Stick|"
    "Fehler bei der\nÜbertragung (CRC)|Zeitüberschreitung|Keine Schreibrechte\nauf USB",
    "Disc full|Not enough\nspace|Transfer\nsuccessful|No USB stick|"
    "Error during\ntransfer (CRC)|Timeout|No write permission\non USB"};

inline constexpr TextEntry kService[] = {
    command("USB_SaveAll", {"Alles auf USB sichern", "Save all to USB"},
            {"Logbücher, Aufzeichnungen und Parameter auf den USB-Stick kopieren",
             "Copy logbooks, records and parameters to the USB stick"},
            kWait, kUsbResults),
    command("USB_SaveLog", {"Logbücher auf USB", "Save logbooks to USB"},
            {"Nur die Logbücher auf den USB-Stick kopieren", "Copy only the logbooks to the USB stick"},
            kWait, kUsbResults),
    command(
        "USB_SaveRec", {"Aufzeichnungen auf USB", "Save records to USB"},
        {"Nur die Störschriebe auf den USB-Stick kopieren", "Copy only the fault records to the USB stick"},
        kWait, kUsbResults),
    command("USB_SaveIni", {"Parameter auf USB", "Save parameters to USB"},
            {"Nur die Parameterdateien auf den USB-Stick kopieren",
             "Copy only the parameter files to the USB stick"},
            kWait, kUsbResults),
    command("USB_SaveAllMac", {"Alles auf USB (MAC)", "Save all to USB (MAC)"},
            {"Wie Alles auf USB sichern, unter der MAC-Adresse des Geräts",
             "As Save all to USB, under the device's MAC address"},
            kWait, kUsbResults),
    command("USBparameter", {"Parameter von USB", "Load parameters from USB"},
            {"Parameterdateien vom USB-Stick einlesen", "Read parameter files from the USB stick"}, kWait),
    command("Logbook", {"Logbuch", "Logbook"},
            {"Logbuch auf der Anzeige öffnen", "Open the logbook on the display"}),
    command(
        "LCD_log_clear", {"LCD-Logbuch löschen", "Clear LCD logbook"},
        {"Alle Einträge des Logbuchs der Anzeige löschen", "Delete all entries of the display's logbook"}),
    command("LCD_Test", {"Anzeigetest", "Display test"},
            {"Prüfung der Anzeige beginnen", "Begin the test of the display"}),
};

} // namespace talux::texts

#endif
