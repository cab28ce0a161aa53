// Export to USB, logbook, display test.
#ifndef TALUX_TEXTS_SERVICE_H
#define TALUX_TEXTS_SERVICE_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kService[] = {
    command("USB_SaveAll", {"Alles auf USB sichern", "Save all to USB"},
            {"Parameter, Logbuch und Aufzeichnungen auf den USB-Stick kopieren",
             "Copy parameters, logbook and records to the USB stick"},
            {"Bitte warten...", "Please wait..."},
            {"Speicher voll|Nicht genug\nSpeicher|Übertragung\nerfolgreich|Kein USB-Stick|Fehler bei "
             "der\nÜbertragung (CRC)|Zeitüberschreitung|Keine Schreibrechte\nauf USB",
             "Disc full|Not enough\nspace|Transfer\nsuccessful|No USB stick|Error during\ntransfer "
             "(CRC)|Timeout|No write permission\non USB"}),
};

} // namespace talux::texts

#endif
