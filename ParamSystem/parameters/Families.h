// All families, in the order of the device's menus.
#ifndef TALUX_PARAMETERS_FAMILIES_H
#define TALUX_PARAMETERS_FAMILIES_H

#include "ParamSystem/parameters/AnalogInputs.h"
#include "ParamSystem/parameters/BinaryIO.h"
#include "ParamSystem/parameters/Display.h"
#include "ParamSystem/parameters/EarthFault.h"
#include "ParamSystem/parameters/Family.h"
#include "ParamSystem/parameters/Firewall.h"
#include "ParamSystem/parameters/Identification.h"
#include "ParamSystem/parameters/Measurements.h"
#include "ParamSystem/parameters/ModbusSlave.h"
#include "ParamSystem/parameters/Network.h"
#include "ParamSystem/parameters/ProcessImages.h"
#include "ParamSystem/parameters/Recorder.h"
#include "ParamSystem/parameters/Records.h"
#include "ParamSystem/parameters/Runtime.h"
#include "ParamSystem/parameters/Scripting.h"
#include "ParamSystem/parameters/Security.h"
#include "ParamSystem/parameters/SerialPorts.h"
#include "ParamSystem/parameters/Service.h"
#include "ParamSystem/parameters/Signals.h"
#include "ParamSystem/parameters/Snapshot.h"
#include "ParamSystem/parameters/State.h"
#include "ParamSystem/parameters/Telecontrol.h"
#include "ParamSystem/parameters/Templates.h"
#include "ParamSystem/parameters/TimeServices.h"
#include "ParamSystem/parameters/UserTexts.h"

namespace talux::parameters {

inline constexpr Family kFamilies[] = {
    {"Vorlagen", "Templates", kTemplatesRows, kTemplatesNotes},
    {"Zustand", "State", kStateRows, kStateNotes},
    {"Messwerte", "Measurements", kMeasurementsRows, kMeasurementsNotes},
    {"Meldungen", "Signals", kSignalsRows, kSignalsNotes},
    {"Kennzeichnung", "Identification", kIdentificationRows},
    {"Anzeige", "Display", kDisplayRows},
    {"Netzwerk", "Network", kNetworkRows, kNetworkNotes},
    {"Firewall und Dienste", "Firewall and services", kFirewallRows, kFirewallNotes, kSecurityFamily},
    {"Zeitdienste", "Time services", kTimeServicesRows, kTimeServicesNotes},
    {"Serielle Schnittstellen", "Serial ports", kSerialPortsRows},
    {"Modbus-Slave", "Modbus slave", kModbusSlaveRows, kModbusSlaveNotes},
    {"Fernwirken", "Telecontrol", kTelecontrolRows, kTelecontrolNotes},
    {"Skripte", "Scripting", kScriptingRows, kScriptingNotes},
    {"Prozessabbilder", "Process images", kProcessImagesRows, kProcessImagesNotes},
    {"Analogeingänge", "Analog inputs", kAnalogInputsRows, kAnalogInputsNotes},
    {"Binäre Ein- und Ausgänge", "Binary inputs and outputs", kBinaryIORows, kBinaryIONotes},
    {"Erdschlusserfassung", "Earth-fault detection", kEarthFaultRows, kEarthFaultNotes, kMethodFamily},
    {"Recorder und Statistik", "Recorder and statistics", kRecorderRows, kRecorderNotes},
    {"Benutzertexte", "User texts", kUserTextsRows},
    {"Service", "Service", kServiceRows},
    {"Benutzer und Sicherheit", "Users and security", kSecurityRows, kSecurityNotes, kSecurityFamily},
    {"Laufzeitwerte", "Run-time values", kRuntimeRows, kRuntimeNotes},
    {"Momentaufnahme der Messwerte", "Measurement snapshot", kSnapshotRows},
    {"Datensätze", "Records", kRecordsRows, kRecordsNotes},
};

} // namespace talux::parameters

#endif
