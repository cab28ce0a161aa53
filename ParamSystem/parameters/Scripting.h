// Script server, Modbus master (connection manager) and the states of its slaves, one per slave address.
#ifndef TALUX_PARAMETERS_SCRIPTING_H
#define TALUX_PARAMETERS_SCRIPTING_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

inline constexpr Row kScriptingRows[] = {
    flag(8056, "debug_slaves", {},
         {{"Diagnose Slaves", "Ausgaben der Slave-Protokolle für die Fehlersuche"},
          {"Debug slaves", "Output of the slave protocols for debugging"}}),
    flag(8057, "debug_slaves_file", {},
         {{"Diagnose Slaves Datei", "Ausgaben der Slave-Protokolle in eine Datei schreiben"},
          {"Debug slaves to file", "Write the output of the slave protocols to a file"}}),
    flag(8058, "SCRIPTSERVER_active", {},
         {{"Skriptserver aktiv", "Skriptserver starten, der das gewählte Skript ausführt"},
          {"Script server active", "Start the script server, which runs the chosen script"}}),
    text(9028, "usedscript", {.length = 255, .def = "talux_default.lua"},
         {{"Skript", "Name der Skriptdatei, die der Skriptserver ausführt"},
          {"Script", "Name of the script file that the script server runs"}}),
    number(6089, "script_sleep", {.def = 800, .min = 200, .max = 65535, .unit = "ms"},
           {{"Skriptpause", "Pause zwischen zwei Durchläufen des Skripts"},
            {"Script sleep", "Pause between two runs of the script"}}),
    number(6090, "script_timeout", {.def = 60, .min = -1, .max = 65535, .unit = "s"},
           {{"Skript-Timeout", "Laufzeit, nach der das Skript abgebrochen wird"},
            {"Script timeout", "Run time after which the script is stopped"}}),
    flag(8059, "debug_script", {},
         {{"Diagnose Skript", "Ausgaben des Skriptservers für die Fehlersuche"},
          {"Debug script", "Output of the script server for debugging"}}),
    flag(8060, "debug_script_file", {},
         {{"Diagnose Skript Datei", "Ausgaben des Skriptservers in eine Datei schreiben"},
          {"Debug script to file", "Write the output of the script server to a file"}}),
    flag(8061, "CONMASTER_active", {},
         {{"Modbus-Master aktiv", "Verbindungsmanager starten, der andere Geräte über Modbus abfragt"},
          {"Modbus master active", "Start the connection manager, which polls other devices via Modbus"}}),
    choice(
        10042, "Modbus_port_conmaster", {.names = "Port_1|Port_2", .min = 1},
        {{"Port Modbus-Master", "Serielle Schnittstelle, auf der der Modbus-Master abfragt", "Port 1|Port 2"},
         {"Modbus master port", "Serial port on which the Modbus master polls", "Port 1|Port 2"}}),
    flag(8062, "Modbus_poll_conmaster", {},
         {{"Abfrage Modbus-Master", "Slaves zyklisch abfragen"},
          {"Modbus master polling", "Poll the slaves cyclically"}}),
    number(6091, "Modbus_sleep_conmaster", {.def = 200, .min = 20, .max = 65535, .unit = "ms"},
           {{"Pause Modbus-Master", "Pause zwischen zwei Abfragen des Modbus-Masters"},
            {"Modbus master sleep", "Pause between two polls of the Modbus master"}}),
    text(9029, "Modbus_csv_conmaster", {.length = 255, .def = "talux_conmaster.csv"},
         {{"Tabelle Modbus-Master", "Name der CSV-Datei mit den abzufragenden Registern"},
          {"Modbus master table", "Name of the CSV file with the registers to poll"}}),
    text(9030, "usedscript_conmaster", {.length = 255, .def = "talux_conmaster.lua"},
         {{"Skript Modbus-Master", "Name der Skriptdatei des Verbindungsmanagers"},
          {"Modbus master script", "Name of the script file of the connection manager"}}),
    number(6092, "script_sleep_conmaster", {.def = 800, .min = 200, .max = 65535, .unit = "ms"},
           {{"Pause Master-Skript", "Pause zwischen zwei Durchläufen des Skripts des Verbindungsmanagers"},
            {"Master script sleep", "Pause between two runs of the connection manager's script"}}),
    number(
        6093, "script_timeout_conmaster", {.def = 60, .min = -1, .max = 65535, .unit = "s"},
        {{"Timeout Master-Skript", "Laufzeit, nach der das Skript des Verbindungsmanagers abgebrochen wird"},
         {"Master script timeout", "Run time after which the connection manager's script is stopped"}}),
    flag(8063, "debug_conmaster_mod", {},
         {{"Diagnose Modbus-Master", "Ausgaben der Modbus-Abfragen für die Fehlersuche"},
          {"Debug Modbus master", "Output of the Modbus polls for debugging"}}),
    flag(8064, "debug_conmaster_lua", {},
         {{"Diagnose Master-Skript", "Ausgaben des Skripts des Verbindungsmanagers für die Fehlersuche"},
          {"Debug master script", "Output of the connection manager's script for debugging"}}),
    flag(8065, "debug_file_conmaster", {},
         {{"Diagnose Master Datei", "Ausgaben des Verbindungsmanagers in eine Datei schreiben"},
          {"Debug master to file", "Write the output of the connection manager to a file"}}),
    indexed(247, number(6094, "conman_status", {.is = kRuntime},
                        {{"Status Modbus-Slaves", "Verbindungszustand je Slave-Adresse 1 bis 247"},
                         {"Modbus slave status", "Connection state by slave address, 1 to 247"}})),
    indexed(247, number(6341, "conman_error", {.is = kRuntime},
                        {{"Fehler Modbus-Slaves", "Fehler je Slave-Adresse 1 bis 247"},
                         {"Modbus slave errors", "Error by slave address, 1 to 247"}})),
    text(9031, "conman_slaves", {.length = 127, .is = kRuntime},
         {{"Modbus-Slaves", "Slaves des Verbindungsmanagers als Text"},
          {"Modbus slaves", "Slaves of the connection manager as a text"}}),
};

inline constexpr Note kScriptingNotes[] = {
    unknown("script_timeout script_timeout_conmaster",
            "Was -1 bedeutet, ist nicht dokumentiert. Ganze Sekunden; Nachkommastellen fallen weg.",
            "What -1 means is not documented. Whole seconds; a fraction is cut off."),
    unknown("conman_status conman_error", "Die Bedeutung der Zahlen ist nicht dokumentiert.",
            "The meaning of the numbers is not documented."),
    advice("script_sleep script_timeout usedscript",
           "Der Skriptserver führt usedscript immer wieder aus, mit script_sleep Pause, und bricht einen "
           "Durchlauf nach script_timeout ab. Wo das Skript liegt und wohin print schreibt, ist nicht "
           "dokumentiert.",
           "The script server runs usedscript again and again with a pause of script_sleep and stops a run "
           "after script_timeout. Where the script is stored and where print writes is not documented."),
};

} // namespace talux::parameters

#endif
