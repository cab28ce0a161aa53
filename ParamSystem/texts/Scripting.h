// Script server, Modbus master (connection manager) and the state of its slaves.
#ifndef TALUX_TEXTS_SCRIPTING_H
#define TALUX_TEXTS_SCRIPTING_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kScripting[] = {
    value(
        "debug_slaves", {"Diagnose Slaves", "Debug slaves"},
        {"Ausgaben der Slave-Protokolle für die Fehlersuche", "Output of the slave protocols for debugging"}),
    value("debug_slaves_file", {"Diagnose Slaves Datei", "Debug slaves to file"},
          {"Ausgaben der Slave-Protokolle in eine Datei schreiben",
           "Write the output of the slave protocols to a file"}),
    value("SCRIPTSERVER_active", {"Skriptserver aktiv", "Script server active"},
          {"Skriptserver starten, der das gewählte Skript ausführt",
           "Start the script server, which runs the chosen script"}),
    value("usedscript", {"Skript", "Script"},
          {"Name der Skriptdatei, die der Skriptserver ausführt",
           "Name of the script file that the script server runs"}),
    value("script_sleep", {"Skriptpause", "Script sleep"},
          {"Pause zwischen zwei Durchläufen des Skripts", "Pause between two runs of the script"}, "ms"),
    value("script_timeout", {"Skript-Timeout", "Script timeout"},
          {"Laufzeit, nach der das Skript abgebrochen wird", "Run time after which the script is stopped"},
          "s"),
    value("debug_script", {"Diagnose Skript", "Debug script"},
          {"Ausgaben des Skriptservers für die Fehlersuche", "Output of the script server for debugging"}),
    value("debug_script_file", {"Diagnose Skript Datei", "Debug script to file"},
          {"Ausgaben des Skriptservers in eine Datei schreiben",
           "Write the output of the script server to a file"}),
    value("CONMASTER_active", {"Modbus-Master aktiv", "Modbus master active"},
          {"Verbindungsmanager starten, der andere Geräte über Modbus abfragt",
           "Start the connection manager, which polls other devices via Modbus"}),
    choice("Modbus_port_conmaster", {"Port Modbus-Master", "Modbus master port"},
           {"Serielle Schnittstelle, auf der der Modbus-Master abfragt",
            "Serial port on which the Modbus master polls"},
           {"Port 1|Port 2", "Port 1|Port 2"}),
    value("Modbus_poll_conmaster", {"Abfrage Modbus-Master", "Modbus master polling"},
          {"Slaves zyklisch abfragen", "Poll the slaves cyclically"}),
    value("Modbus_sleep_conmaster", {"Pause Modbus-Master", "Modbus master sleep"},
          {"Pause zwischen zwei Abfragen des Modbus-Masters", "Pause between two polls of the Modbus master"},
          "ms"),
    value("Modbus_csv_conmaster", {"Tabelle Modbus-Master", "Modbus master table"},
          {"Name der CSV-Datei mit den abzufragenden Registern",
           "Name of the CSV file with the registers to poll"}),
    value("usedscript_conmaster", {"Skript Modbus-Master", "Modbus master script"},
          {"Name der Skriptdatei des Verbindungsmanagers",
           "Name of the script file of the connection manager"}),
    value("script_sleep_conmaster", {"Pause Master-Skript", "Master script sleep"},
          {"Pause zwischen zwei Durchläufen des Skripts des Verbindungsmanagers",
           "Pause between two runs of the connection manager's script"},
          "ms"),
    value("script_timeout_conmaster", {"Timeout Master-Skript", "Master script timeout"},
          {"Laufzeit, nach der das Skript des Verbindungsmanagers abgebrochen wird",
           "Run time after which the connection manager's script is stopped"},
          "s"),
    value("debug_conmaster_mod", {"Diagnose Modbus-Master", "Debug Modbus master"},
          {"Ausgaben der Modbus-Abfragen für die Fehlersuche", "Output of the Modbus polls for debugging"}),
    value("debug_conmaster_lua", {"Diagnose Master-Skript", "Debug master script"},
          {"Ausgaben des Skripts des Verbindungsmanagers für die Fehlersuche",
           "Output of the connection manager's script for debugging"}),
    value("debug_file_conmaster", {"Diagnose Master Datei", "Debug master to file"},
          {"Ausgaben des Verbindungsmanagers in eine Datei schreiben",
           "Write the output of the connection manager to a file"}),
    value("conman_status", {"Status Modbus-Slaves", "Modbus slave status"},
          {"Verbindungszustand je Slave-Adresse 1 bis 247", "Connection state by slave address, 1 to 247"}),
    value("conman_error", {"Fehler Modbus-Slaves", "Modbus slave errors"},
          {"Fehler je Slave-Adresse 1 bis 247", "Error by slave address, 1 to 247"}),
    value("conman_slaves", {"Modbus-Slaves", "Modbus slaves"},
          {"Slaves des Verbindungsmanagers als Text", "Slaves of the connection manager as a text"}),
};

} // namespace talux::texts

#endif
