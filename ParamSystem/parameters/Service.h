// Transfers to and from a USB stick, logbooks, display test.
#ifndef TALUX_PARAMETERS_SERVICE_H
#define TALUX_PARAMETERS_SERVICE_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

// Results of a transfer to a USB stick.
inline constexpr char kUsbResultsDe[] =
    "Speicher voll|Nicht genug\nSpeicher|Übertragung\nerfolgreich|Kein USB-Stick|"
    "Fehler bei der\nÜbertragung (CRC)|Zeitüberschreitung|Keine Schreibrechte\nauf USB";
inline constexpr char kUsbResultsEn[] = "Disc full|Not enough\nspace|Transfer\nsuccessful|No USB stick|"
                                        "Error during\ntransfer (CRC)|Timeout|No write permission\non USB";

inline constexpr Row kServiceRows[] = {
    command(19007, "USB_SaveAll", {},
            {{"Alles auf USB sichern", "Logbücher, Aufzeichnungen und Parameter auf den USB-Stick kopieren",
              "Bitte warten...", kUsbResultsDe},
             {"Save all to USB", "Copy logbooks, records and parameters to the USB stick", "Please wait...",
              kUsbResultsEn}}),
    command(19008, "USB_SaveLog", {},
            {{"Logbücher auf USB", "Nur die Logbücher auf den USB-Stick kopieren", "Bitte warten...",
              kUsbResultsDe},
             {"Save logbooks to USB", "Copy only the logbooks to the USB stick", "Please wait...",
              kUsbResultsEn}}),
    command(19009, "USB_SaveRec", {},
            {{"Aufzeichnungen auf USB", "Nur die Störschriebe auf den USB-Stick kopieren", "Bitte warten...",
              kUsbResultsDe},
             {"Save records to USB", "Copy only the fault records to the USB stick", "Please wait...",
              kUsbResultsEn}}),
    command(19010, "USB_SaveIni", {},
            {{"Parameter auf USB", "Nur die Parameterdateien auf den USB-Stick kopieren", "Bitte warten...",
              kUsbResultsDe},
             {"Save parameters to USB", "Copy only the parameter files to the USB stick", "Please wait...",
              kUsbResultsEn}}),
    command(19011, "USB_SaveAllMac", {},
            {{"Alles auf USB (MAC)", "Wie Alles auf USB sichern, unter der MAC-Adresse des Geräts",
              "Bitte warten...", kUsbResultsDe},
             {"Save all to USB (MAC)", "As Save all to USB, under the device's MAC address", "Please wait...",
              kUsbResultsEn}}),
    command(19012, "USBparameter", {},
            {{"Parameter von USB", "Parameterdateien vom USB-Stick einlesen", "Bitte warten..."},
             {"Load parameters from USB", "Read parameter files from the USB stick", "Please wait..."}}),
    command(19013, "Logbook", {},
            {{"Logbuch", "Logbuch auf der Anzeige öffnen"}, {"Logbook", "Open the logbook on the display"}}),
    command(19014, "LCD_log_clear", {},
            {{"LCD-Logbuch löschen", "Alle Einträge des Logbuchs der Anzeige löschen"},
             {"Clear LCD logbook", "Delete all entries of the display's logbook"}}),
    command(
        19015, "LCD_Test", {},
        {{"Anzeigetest", "Prüfung der Anzeige beginnen"}, {"Display test", "Begin the test of the display"}}),
};

} // namespace talux::parameters

#endif
