// Texts and choice lists without a value of their own: the dialogs of the device, and what several parameters
// share.
#ifndef TALUX_PARAMETERS_TEMPLATES_H
#define TALUX_PARAMETERS_TEMPLATES_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

inline constexpr Row kTemplatesRows[] = {
    dialog(18000, "DLG_Test", {{"Test", "Testmeldung"}, {"Test", "Test message"}}),
    dialog(18001, "DLG_Information", {{"Information", "Bitte beachten"}, {"Information", "Please note"}}),
    dialog(18002, "DLG_Progress", {{"In Arbeit", "Bitte warten..."}, {"In progress", "Please wait..."}}),
    dialog(18003, "DLG_Success",
           {{"Fertig", "Erfolgreich\nausgeführt"}, {"Done", "Successfully\ncarried out"}}),
    dialog(18004, "DLG_Error", {{"Fehler", "Vorgang\nfehlgeschlagen"}, {"Error", "Operation\nfailed"}}),
    // yes or no
    dialog(18005, "DLG_Confirmation",
           {{"Bestätigung", "Sind Sie sicher?", "ja|nein"}, {"Confirmation", "Are you sure?", "yes|no"}}),
    dialog(18006, "DLG_SwitchTo",
           {{"Wechseln zu...", "Ziel wählen", "Menü|Messwerte"},
            {"Switch to...", "Choose where to go", "Menu|Measurements"}}),
    dialog(18007, "DLG_SwitchToMenu",
           {{"Wechsel zum Menü", "Menü wird geöffnet"}, {"Switch to menu", "Opening the menu"}}),
    dialog(18008, "DLG_SwitchToMeasurement",
           {{"Wechsel zu Messwerten", "Messwerte werden\nangezeigt"},
            {"Switch to measurements", "Showing the\nmeasurements"}}),
    dialog(18009, "DLG_CalibrationStart",
           {{"Abgleich starten?", "Spannungseingänge\nwerden abgeglichen", "ja|nein"},
            {"Start calibration?", "Voltage inputs\nwill be calibrated", "yes|no"}}),
    dialog(18010, "DLG_CalibrationVoltage",
           {{"Abgleich: Spannung", "Referenzspannung\nanlegen"},
            {"Calibration: voltage", "Apply the\nreference voltage"}}),
    dialog(18011, "DLG_CalibrationRunning",
           {{"Abgleich läuft", "Bitte warten..."}, {"Calibration running", "Please wait..."}}),
    dialog(18012, "DLG_CalibrationRange",
           {{"Abgleich: Bereich", "Gemessene Spannung\naußerhalb des\nzulässigen Bereichs"},
            {"Calibration: range", "Measured voltage\noutside the\npermitted range"}}),
    dialog(18013, "DLG_CalibrationResult",
           {{"Abgleich: Ergebnis", "Neue Abgleichwerte\nberechnet"},
            {"Calibration: result", "New calibration\nvalues calculated"}}),
    dialog(18014, "DLG_CalibrationConfirm",
           {{"Werte übernehmen?", "Neue Abgleichwerte\nübernehmen?", "ja|nein"},
            {"Accept values?", "Accept the new\ncalibration values?", "yes|no"}}),
    dialog(18015, "DLG_CalibrationDone",
           {{"Abgleich fertig", "Abgleich erfolgreich\nbeendet"},
            {"Calibration done", "Calibration finished\nsuccessfully"}}),
    dialog(18016, "DLG_CalibrationAborted",
           {{"Abgleich abgebrochen", "Abgleichwerte\nunverändert"},
            {"Calibration aborted", "Calibration values\nleft unchanged"}}),
    dialog(18017, "DLG_FactorySettings",
           {{"Werkseinstellungen?", "Alle Einstellungen\nzurücksetzen?", "ja|nein"},
            {"Factory settings?", "Reset all\nsettings?", "yes|no"}}),
    dialog(18018, "DLG_UserLevel",
           {{"Benutzerebene", "Bitte PIN eingeben"}, {"User level", "Please enter the PIN"}}),
    dialog(18019, "DLG_UserLevelLow",
           {{"Benutzerebene zu niedrig", "Keine Berechtigung"}, {"User level too low", "Not permitted"}}),
    dialog(18020, "DLG_LCDLogReset",
           {{"LCD-Logbuch löschen?", "Alle Einträge\nwerden gelöscht", "ja|nein"},
            {"LCD logbook reset?", "All entries will\nbe deleted", "yes|no"}}),

    choiceTemplate(kBaudRate, "9600|19200|38400|57600|115200",
                   {{"Baudrate", "", "9600|19200|38400|57600|115200"},
                    {"Baud rate", "", "9600|19200|38400|57600|115200"}}),
    choiceTemplate(kDataBits, "7|8", {{"Datenbits", "", "7|8"}, {"Data bits", "", "7|8"}}),
    choiceTemplate(kParity, "None|Odd|Even",
                   {{"Parität", "", "keine|ungerade|gerade"}, {"Parity", "", "none|odd|even"}}),
    choiceTemplate(kStopBits, "1|1_5|2", {{"Stoppbits", "", "1|1,5|2"}, {"Stop bits", "", "1|1.5|2"}}),
    choiceTemplate(
        kHandshake, "None|Xon_Xoff|RTS_CTS",
        {{"Handshake", "", "keiner|Xon/Xoff|RTS/CTS"}, {"Handshake", "", "none|Xon/Xoff|RTS/CTS"}}),
    choiceTemplate(kTermination, "Off|On", {{"Terminierung", "", "Aus|Ein"}, {"Termination", "", "Off|On"}}),
    decimalTemplate(kCtRatio, {.def = 100, .min = 0.1, .max = 90000},
                    {{"Stromwandlerübersetzung"}, {"CT ratio"}}),
    choiceTemplate(kInputFunction, "OFF|BI{1..6}|Virt_BI{1..96}",
                   {{"Eingangsfunktion", "", "AUS|BE{1..6}|virt_BE{1..96}"},
                    {"Input function", "", "OFF|BI{1..6}|virt_BI{1..96}"}}),
    choiceTemplate(kInputPolarity, "Plus|Minus",
                   {{"Eingangspolarität", "", "+|-"}, {"Input polarity", "", "+|-"}}),
    // German v and r: forward and backward, A and SS: feeder and busbar.
    choiceTemplate(
        kOutputFunction,
        "OFF|PROG|Status|Error|U1_ok|U2_ok|U3_ok|User_BOF{1..8}|Over_Uearth|Over_Uearth_delay|"
        "Uerd_L1|Uerd_L2|Uerd_L3|Uerd_L1_d|Uerd_L2_d|Uerd_L3_d|Sum_Uearth_to_f|Sum_Uearth_to_b|"
        "Prio_Uearth_to_f|Prio_Uearth_to_b|Qu2_to_F|Qu2_to_BB|Qu2_CE_to_F|Qu2_CE_to_BB|Qui_to_F|"
        "Qui_to_BB|Cos_to_F|Cos_to_BB|Sin_to_F|Sin_to_BB|C_s_to_F|C_s_to_BB|H_250_to_F|"
        "H_250_to_BB|H_fx1_to_F|H_fx1_to_BB|H_fx2_plus_to_F|H_fx2_plus_to_BB|H_fx2_minus_to_F|"
        "H_fx2_minus_to_BB|Pulse_50|Pulse_50c|Pulse_50c_to_F|Pulse_50c_to_BB|Pulse50_LED|"
        "Puls_HPCI_50|Puls_HPCI_50_to_F|Puls_HPCI_50_to_BB|Puls_HPCI_fx|Over_I|Over_I1|Over_I2|"
        "Over_I3|Over2_I|Over2_I1|Over2_I2|Over2_I3|Over_I_to_F|Over_I1_to_F|Over_I2_to_F|"
        "Over_I3_to_F|Over2_I_to_F|Over2_I1_to_F|Over2_I2_to_F|Over2_I3_to_F|Over_I_BB|Over_I1_BB|"
        "Over_I2_BB|Over_I3_BB|Over2_I_BB|Over2_I1_BB|Over2_I2_BB|Over2_I3_BB|Over_Ferro_res|"
        "50Hz_minus_df|50Hz_plus_df|50Hz_n_n|DynAdm_to_FD|DynAdm_to_BB|I_ScE_over|"
        "I_ScE_over_to_FD|I_ScE_over_to_BB|NC_{90..128}",
        {{"Ausgangsfunktion", "",
          "AUS|PROG|Status|Fehler|U1_ok|U2_ok|U3_ok|user_BAF{1..8}|"
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
          "frei*39"},
         {"Output function", "",
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
          "NC*39"}}),
    choiceTemplate(
        kPriorityFunction, "",
        {{"Prioritätsfunktion", "", "AUS|qu2 - Wischer|qu2 + CE|qui|ov5|ovx|ovx1|cos|sin|puls50"},
         {"Priority function", "", "AUS|qu2 - Transient|qu2 + CE|qui|ov5|ovx|ovx1|cos|sin|pulse50"}}),
    choiceTemplate(
        kDisplayMeasure, "",
        {{"Messwertanzeige", "",
          "Spannung sekundär|Strom sekundär|Winkel|Spannung primär|Strom primär|Außenleiterspannung|"
          "Wirkleistung prim.|Blindleistung prim.|Scheinleistung prim.|PQS prim.|5. Harm. prim.|"
          "Frequenz fx1|Spannung BE1,2"},
         {"Display measure", "",
          "Voltage secondary|Current secondary|Angle|Voltage primary|Current primary|Voltage Ph-Ph|"
          "Activ power prim.|Reactiv power prim.|Apparent power prim.|PQS prim.|5th harm. prim.|"
          "Frequency fx1|Voltage DI1,2"}}),
    choiceTemplate(kOutputPolarity, "Plus|Minus",
                   {{"Ausgangspolarität", "", "+|-"}, {"Output polarity", "", "+|-"}}),
};

inline constexpr Note kTemplatesNotes[] = {
    unknown(
        "TPL_MEAS_DISP",
        "Nur die Zahlen 1 bis 13 haben einen Namen; 14 bis 24 werden angenommen, ihre Bedeutung ist nicht "
        "dokumentiert.",
        "Only the numbers 1 to 13 have a name; 14 to 24 are accepted, but their meaning is not documented."),
    unknown("TPL_PRIORITY",
            "Nur die Zahlen 1 bis 10 haben einen Namen; 11 bis 20 werden angenommen, ihre Bedeutung ist "
            "nicht dokumentiert. ov5 ist H250 (harm1), ovx ist H fx1 (harm2); wofür ovx1 steht, ist nicht "
            "dokumentiert.",
            "Only the numbers 1 to 10 have a name; 11 to 20 are accepted, but their meaning is not "
            "documented. ov5 is H250 (harm1), ovx is H fx1 (harm2); what ovx1 stands for is not documented."),
    warning("TPL_BA_FUNCTION",
            "90 bis 128 sind frei: Sie werden angenommen, haben aber keine Funktion. A (englisch F, FD): in "
            "Richtung Abgang; SS (englisch BB): in Richtung Sammelschiene; v, r (englisch f, b): vorwärts, "
            "rückwärts; verz (englisch d): verzögert.",
            "90 to 128 are not connected: they are accepted but have no function. F, FD: towards the feeder; "
            "BB: towards the busbar; f, b: forward, backward; d: delayed."),
};

} // namespace talux::parameters

#endif
