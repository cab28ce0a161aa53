// The device's dialogs, and titles and choices that several parameters share.
#ifndef TALUX_TEXTS_TEMPLATES_H
#define TALUX_TEXTS_TEMPLATES_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kTemplates[] = {
    dialog("TPL_DLG_Test", {"Test", "Test"}, {"Testmeldung", "Test message"}),
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
           {"Neue Abgleichwerte\nberechnet", "New calibration\nvalues calculated"}),
    dialog("TPL_DLG_CalibrationConfirm", {"Werte übernehmen?", "Accept values?"},
           {"Neue Abgleichwerte\nübernehmen?", "Accept the new\ncalibration values?"}, {"ja|nein", "yes|no"}),
    dialog("TPL_DLG_CalibrationDone", {"Abgleich fertig", "Calibration done"},
           {"Abgleich erfolgreich\nbeendet", "Calibration finished\nsuccessfully"}),
    dialog("TPL_DLG_CalibrationAborted", {"Abgleich abgebrochen", "Calibration aborted"},
           {"Abgleichwerte\nunverändert", "Calibration values\nleft unchanged"}),

    dialog("TPL_DLG_FactorySettings", {"Werkseinstellungen?", "Factory settings?"},
           {"Alle Einstellungen\nzurücksetzen?", "Reset all\nsettings?"}, {"ja|nein", "yes|no"}),
    dialog("TPL_DLG_UserLevel", {"Benutzerebene", "User level"},
           {"Bitte PIN eingeben", "Please enter the PIN"}),
    dialog("TPL_DLG_UserLevelLow", {"Benutzerebene zu niedrig", "User level too low"},
           {"Keine Berechtigung", "Not permitted"}),
    dialog("TPL_DLG_LCDLogReset", {"LCD-Logbuch löschen?", "LCD logbook reset?"},
           {"Alle Einträge\nwerden gelöscht", "All entries will\nbe deleted"}, {"ja|nein", "yes|no"}),

    shared("TPL_BAUDRATE", {"Baudrate", "Baud rate"},
           {"9600|19200|38400|57600|115200", "9600|19200|38400|57600|115200"}),
    shared("TPL_DATABITS", {"Datenbits", "Data bits"}, {"7|8", "7|8"}),
    shared("TPL_PARITY", {"Parität", "Parity"}, {"keine|ungerade|gerade", "none|odd|even"}),
    shared("TPL_STOPBITS", {"Stoppbits", "Stop bits"}, {"1|1,5|2", "1|1.5|2"}),
    shared("TPL_HANDSHAKE", {"Handshake", "Handshake"}, {"keiner|Xon/Xoff|RTS/CTS", "none|Xon/Xoff|RTS/CTS"}),
    shared("TPL_TERMINATION", {"Terminierung", "Termination"}, {"Aus|Ein", "Off|On"}),
    label("TPL_CT_RATIO", {"Stromwandlerübersetzung", "CT ratio"}),
    shared("TPL_BE_FUNCTION", {"Eingangsfunktion", "Input function"},
           {"AUS|BE{1..6}|virt_BE{1..96}", "OFF|BI{1..6}|virt_BI{1..96}"}),
    shared("TPL_BE_POLARITY", {"Eingangspolarität", "Input polarity"}, {"+|-", "+|-"}),

    // German v and r: forward and backward, A and SS: feeder and busbar.
    shared("TPL_BA_FUNCTION", {"Ausgangsfunktion", "Output function"},
           {"AUS|PROG|Status|Fehler|U1_ok|U2_ok|U3_ok|user_BAF{1..8}|"
            ">Uerd|>Uerd_verz|Uerd_L1|Uerd_L2|Uerd_L3|Uerd_L1_verz|Uerd_L2_verz|Uerd_L3_verz|"
            "Sum_Uerd ->v|Sum_Uerd ->r|Prio_Uerd ->v|Prio_Uerd ->r|"
            "qu2 ->A|qu2 ->SS|qu2_CE ->A|qu2_CE ->SS|qui ->A|qui ->SS|"
            "cos -> A|cos -> SS|sin -> A|sin -> SS|c_s -> A|c_s -> SS|"
            "H_250 ->A|H_250 ->SS|H_fx1 ->A|H_fx1 ->SS|H_fx2+ ->A|H_fx2+ ->SS|H_fx2- ->A|H_fx2- ->SS|"
            "Puls_50|Puls_50c|Puls_50c ->A|Puls_50c ->SS|Puls50_LED|"
            "Puls_HPCI_50|Puls_HPCI_50 ->A|Puls_HPCI_50 ->SS|Puls_HPCI_fx|"
            ">I|>I1|>I2|>I3|>>I|>>I1|>>I2|>>I3|"
            ">I ->A|>I1 ->A|>I2 ->A|>I3 ->A|>>I ->A|>>I1 ->A|>>I2 ->A|>>I3 ->A|"
            ">I SS|>I1 SS|>I2 SS|>I3 SS|>>I SS|>>I1 SS|>>I2 SS|>>I3 SS|"
            ">Ferro-Res|50Hz -df|50Hz +df|50Hz n.n.|DynAdm ->A|DynAdm ->SS|I_KsE>|I_KsE> ->A|I_KsE> ->SS|"
            "frei*39",
            "OFF|PROG|Status|Error|U1_ok|U2_ok|U3_ok|user_BOF{1..8}|"
            ">Uearth|>Uearth_delay|Uerd_L1|Uerd_L2|Uerd_L3|Uerd_L1_d|Uerd_L2_d|Uerd_L3_d|"
            "Sum_Uearth ->f|Sum_Uearth ->b|Prio_Uearth ->f|Prio_Uearth ->b|"
            "qu2 ->F|qu2 ->BB|qu2_CE ->F|qu2_CE ->BB|qui ->F|qui ->BB|"
            "cos -> F|cos -> BB|sin -> F|sin -> BB|c_s -> F|c_s -> BB|"
            "H_250 ->F|H_250 ->BB|H_fx1 ->F|H_fx1 ->BB|H_fx2+ ->F|H_fx2+ ->BB|H_fx2- ->F|H_fx2- ->BB|"
            "Pulse_50|Pulse_50c|Pulse_50c ->F|Pulse_50c ->BB|Pulse50_LED|"
            "Puls_HPCI_50|Puls_HPCI_50 ->F|Puls_HPCI_50 ->BB|Puls_HPCI_fx|"
            ">I|>I1|>I2|>I3|>>I|>>I1|>>I2|>>I3|"
            ">I ->F|>I1 ->F|>I2 ->F|>I3 ->F|>>I ->F|>>I1 ->F|>>I2 ->F|>>I3 ->F|"
            ">I BB|>I1 BB|>I2 BB|>I3 BB|>>I BB|>>I1 BB|>>I2 BB|>>I3 BB|"
            ">Ferro-res|50Hz -df|50Hz +df|50Hz n.n.|DynAdm ->FD|DynAdm ->BB|I_ScE>|I_ScE> ->FD|I_ScE> ->BB|"
            "NC*39"}),

    shared("TPL_PRIORITY", {"Prioritätsfunktion", "Priority function"},
           {"AUS|qu2 - Wischer|qu2 + CE|qui|ov5|ovx|ovx1|cos|sin|puls50",
            "AUS|qu2 - Transient|qu2 + CE|qui|ov5|ovx|ovx1|cos|sin|pulse50"}),
    shared("TPL_MEAS_DISP", {"Messwertanzeige", "Display measure"},
           {"Spannung sekundär|Strom sekundär|Winkel|Spannung primär|Strom primär|Außenleiterspannung|"
            "Wirkleistung prim.|Blindleistung prim.|Scheinleistung prim.|PQS prim.|5. Harm. prim.|"
            "Frequenz fx1|Spannung BE1,2",
            "Voltage secondary|Current secondary|Angle|Voltage primary|Current primary|Voltage Ph-Ph|"
            "Activ power prim.|Reactiv power prim.|Apparent power prim.|PQS prim.|5th harm. prim.|"
            "Frequency fx1|Voltage DI1,2"}),
    shared("TPL_BA_POLARITY", {"Ausgangspolarität", "Output polarity"}, {"+|-", "+|-"}),
};

} // namespace talux::texts

#endif
