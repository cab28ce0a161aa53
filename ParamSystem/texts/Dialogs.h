// The device's dialogs: what they show and the answers that they offer.
#ifndef TALUX_TEXTS_DIALOGS_H
#define TALUX_TEXTS_DIALOGS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kDialogs[] = {
    dialog("TPL_DLG_Test", {"Test", "Test"}, {"Probe der Anzeige", "Trial of the display"}),
    dialog("TPL_DLG_Information", {"Information", "Information"}, {"Bitte beachten", "Please note"}),
    dialog("TPL_DLG_Progress", {"In Arbeit", "In progress"}, {"Bitte warten...", "Please wait..."}),
    dialog("TPL_DLG_Success", {"Fertig", "Done"}, {"Erfolgreich\nausgeführt", "Successfully\ncarried out"}),
    dialog("TPL_DLG_Error", {"Fehler", "Error"}, {"Vorgang\nfehlgeschlagen", "Operation\nfailed"}),
    dialog("TPL_DLG_Confirmation", {"Bestätigung", "Confirmation"}, {"Sind Sie sicher?", "Are you sure?"},
           {"ja|nein", "yes|no"}),

    dialog("TPL_DLG_SwitchTo", {"Wechseln zu...", "Switch to..."}, {"Ziel wählen", "Choose where to go"},
           {"Menü|Messwerte", "Menu|Measurements"}),
    dialog("TPL_DLG_SwitchToMenu", {"Wechsel zum Menü", "Switch to menu"},
           {"Menü wird geöffnet", "Opening the menu"}),
    dialog("TPL_DLG_SwitchToMeasurement", {"Wechsel zu Messwerten", "Switch to measurements"},
           {"Messwerte werden\nangezeigt", "Showing the\nmeasurements"}),

    dialog("TPL_DLG_CalibrationStart", {"Abgleich starten?", "Start calibration?"},
           {"Spannungseingänge\nwerden abgeglichen", "Voltage inputs\nwill be calibrated"},
           {"ja|nein", "yes|no"}),
    dialog("TPL_DLG_CalibrationVoltage", {"Abgleich: Spannung", "Calibration: voltage"},
           {"Referenzspannung\nanlegen", "Apply the\nreference voltage"}),
    dialog("TPL_DLG_CalibrationRunning", {"Abgleich läuft", "Calibration running"},
           {"Bitte warten...", "Please wait..."}),
    dialog("TPL_DLG_CalibrationRange", {"Abgleich: Bereich", "Calibration: range"},
           {"Gemessene Spannung\naußerhalb des\nzulässigen Bereichs",
            "Measured voltage\noutside the\npermitted range"}),
    dialog("TPL_DLG_CalibrationResult", {"Abgleich: Ergebnis", "Calibration: result"},
           {"Neue Wandler-\nübersetzungen\nberechnet", "New VT ratios\ncalculated"}),
    dialog("TPL_DLG_CalibrationConfirm", {"Werte übernehmen?", "Accept values?"},
           {"Neue Übersetzungen\nübernehmen?", "Take over the\nnew ratios?"}, {"ja|nein", "yes|no"}),
    dialog("TPL_DLG_CalibrationDone", {"Abgleich fertig", "Calibration done"},
           {"Abgleich erfolgreich\nbeendet", "Calibration finished\nsuccessfully"}),
    dialog("TPL_DLG_CalibrationAborted", {"Abgleich abgebrochen", "Calibration aborted"},
           {"Übersetzungen\nunverändert", "Ratios left\nunchanged"}),

    dialog("TPL_DLG_FactorySettings", {"Werkseinstellungen?", "Factory settings?"},
           {"Alle Einstellungen\nzurücksetzen?", "Reset all\nsettings?"}, {"ja|nein", "yes|no"}),
    dialog("TPL_DLG_UserLevel", {"Benutzerebene", "User level"},
           {"Bitte PIN eingeben", "Please enter the PIN"}),
    dialog("TPL_DLG_UserLevelLow", {"Benutzerebene zu niedrig", "User level too low"},
           {"Keine Berechtigung", "Not permitted"}),
    dialog("TPL_DLG_LCDLogReset", {"LCD-Logbuch löschen?", "LCD logbook reset?"},
           {"Alle Einträge\nwerden gelöscht", "All entries will\nbe deleted"}, {"ja|nein", "yes|no"}),
};

} // namespace talux::texts

#endif
