// Modbus slave: protocol, port and the first registers of its maps.
#ifndef TALUX_PARAMETERS_MODBUS_SLAVE_H
#define TALUX_PARAMETERS_MODBUS_SLAVE_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

constexpr Row mapOffset(int id, const char* name, double def, const Words& words,
                        Where where = Where::current()) {
    return number(id, name, {.def = def, .min = 0, .max = 65536}, words, where);
}

// Texts that several rows share.
inline constexpr Words kModbusOffset{{"Modbus-Offset {n}", "Erstes Register des Bereichs {n}"},
                                     {"Modbus offset {n}", "First register of the block {n}"}};

inline constexpr Row kModbusSlaveRows[] = {
    flag(8042, "modbus_active", {},
         {{"Modbus aktiv", "Modbus-Slave einschalten"}, {"Modbus active", "Switch the Modbus slave on"}}),
    choice(10034, "mod_prot", {.choices = 4, .min = 1, .def = 3},
           {{"Modbus-Protokoll", "Art der Modbus-Verbindung, Zahl 1 bis 4"},
            {"Modbus protocol", "Kind of the Modbus connection, number 1 to 4"}}),
    number(6034, "Modbus_Port", {.def = 502},
           {{"Modbus-TCP-Port", "TCP-Port, auf dem der Modbus-Slave Verbindungen annimmt"},
            {"Modbus TCP port", "TCP port on which the Modbus slave accepts connections"}}),
    number(6035, "Modbus_SlaveID", {.def = 11, .min = 0, .max = 247, .is = kIndividual},
           {{"Modbus-Adresse", "Adresse, unter der das Gerät als Modbus-Slave antwortet"},
            {"Modbus slave id", "Address under which the device answers as a Modbus slave"}}),
    number(6036, "Modbus_StoreTime", {.def = 100, .min = 0, .max = 60000, .unit = "ms"},
           {{"Modbus-Speicherzeit", "Zeit, für die der Modbus-Slave Werte speichert"},
            {"Modbus store time", "Time for which the Modbus slave stores values"}}),
    mapOffset(6037, "vBEmo", 0,
              {{"Offset BE", "Erstes Register der Binäreingänge"},
               {"Offset BI", "First register of the binary inputs"}}),
    mapOffset(6038, "vBEFmo", 200,
              {{"Offset BEF", "Erstes Register der Eingangsfunktionen"},
               {"Offset BIF", "First register of the input functions"}}),
    mapOffset(6039, "vBAFmo", 400,
              {{"Offset BAF", "Erstes Register der Ausgangsfunktionen"},
               {"Offset BOF", "First register of the output functions"}}),
    mapOffset(
        6040, "vBAmo", 600,
        {{"Offset Relais", "Erstes Register der Relais"}, {"Offset relays", "First register of the relays"}}),
    mapOffset(6041, "y_BEmo", 800,
              {{"Offset Zustandswort BE", "Erstes Register des Zustandsworts der Binäreingänge (y_BE)"},
               {"Offset state word BI", "First register of the state word of the binary inputs (y_BE)"}}),
    mapOffset(
        6042, "y_vBEFmo", 1000,
        {{"Offset Zustandswort BEF", "Erstes Register des Zustandsworts der Eingangsfunktionen (y_vBEF)"},
         {"Offset state word BIF", "First register of the state word of the input functions (y_vBEF)"}}),
    mapOffset(
        6043, "y_vBAFmo", 1200,
        {{"Offset Zustandswort BAF", "Erstes Register der Zustandswörter der Ausgangsfunktionen (y_vBAF)"},
         {"Offset state word BOF", "First register of the state words of the output functions (y_vBAF)"}}),
    mapOffset(6044, "y_vBAmo", 1400,
              {{"Offset Zustandswort BA", "Erstes Register des Zustandsworts der Relais (y_vBA)"},
               {"Offset state word BO", "First register of the state word of the relays (y_vBA)"}}),
    mapOffset(6045, "y_LEDmo", 1600,
              {{"Offset Zustandswort LED", "Erstes Register des Zustandsworts der LEDs (y_LED)"},
               {"Offset state word LED", "First register of the state word of the LEDs (y_LED)"}}),
    mapOffset(6046, "aUIgmo", 1800, kModbusOffset("aUIg")),
    mapOffset(6047, "wUIgmo", 2000, kModbusOffset("wUIg")),
    mapOffset(6048, "dwUIgmo", 2200, kModbusOffset("dwUIg")),
    mapOffset(6049, "UImo", 2400,
              {{"Offset Messwerte UI", "Erstes Register der Messwerte im Bereich UI"},
               {"Offset values UI", "First register of the measured values in the block UI"}}),
    mapOffset(
        6050, "vBEmoc", 3000,
        {{"Coils BE", "Erste Coil der Binäreingänge"}, {"Coils BI", "First coil of the binary inputs"}}),
    mapOffset(6051, "vBEFmoc", 3200,
              {{"Coils BEF", "Erste Coil der Eingangsfunktionen"},
               {"Coils BIF", "First coil of the input functions"}}),
    mapOffset(6052, "vBAFmoc", 3400,
              {{"Coils BAF", "Erste Coil der Ausgangsfunktionen"},
               {"Coils BOF", "First coil of the output functions"}}),
    mapOffset(6053, "vBAmoc", 3600,
              {{"Coils Relais", "Erste Coil der Relais"}, {"Coils relays", "First coil of the relays"}}),
    mapOffset(6054, "y_vBEmow", 2600,
              {{"Offset BE schreiben", "Erstes Register, über das der Master Binäreingänge setzt"},
               {"Offset for writing BI", "First register through which the master sets binary inputs"}}),
    mapOffset(6055, "y_vTIMEmow", 2800,
              {{"Offset Zeit schreiben", "Erstes Register, über das der Master die Uhr stellt"},
               {"Offset for writing time", "First register through which the master sets the clock"}}),
    mapOffset(6056, "y_vBEmowc", 3800,
              {{"Coils BE schreiben", "Erste Coil, über die der Master Binäreingänge setzt"},
               {"Coils for writing BI", "First coil through which the master sets binary inputs"}}),
    mapOffset(6057, "UImo2", 4000,
              {{"Offset Messwerte UI 2", "Erstes Register der Messwerte im zweiten Bereich UI"},
               {"Offset values UI 2", "First register of the measured values in the second block UI"}}),
    mapOffset(6058, "vBAmo_VIRT", 5000,
              {{"Offset virtuelle BA", "Erstes Register der virtuellen Ausgänge (vBA)"},
               {"Offset virtual outputs", "First register of the virtual outputs (vBA)"}}),
    mapOffset(6059, "vMWRmo_VIRT", 5400,
              {{"Offset Messwerte vMWR", "Erstes Register der gelesenen Messwerte (vMWR)"},
               {"Offset values vMWR", "First register of the measured values read (vMWR)"}}),
    mapOffset(6060, "vBAmoc_VIRT", 15000,
              {{"Coils virtuelle BA", "Erste Coil der virtuellen Ausgänge (vBA)"},
               {"Coils virtual outputs", "First coil of the virtual outputs (vBA)"}}),
    mapOffset(6061, "vBEmo_VIRT", 6000,
              {{"Offset virtuelle BE", "Erstes Register der virtuellen Eingänge (vBE)"},
               {"Offset virtual inputs", "First register of the virtual inputs (vBE)"}}),
    mapOffset(6062, "vMWWmo_VIRT", 6400,
              {{"Offset Messwerte vMWW", "Erstes Register der geschriebenen Messwerte (vMWW)"},
               {"Offset values vMWW", "First register of the measured values written (vMWW)"}}),
    mapOffset(6063, "vBEmoc_VIRT", 16000,
              {{"Coils virtuelle BE", "Erste Coil der virtuellen Eingänge (vBE)"},
               {"Coils virtual inputs", "First coil of the virtual inputs (vBE)"}}),
};

inline constexpr Note kModbusSlaveNotes[] = {
    unknown("mod_prot",
            "1 bis 4, wird an den Modbus-Slave weitergegeben; welche Zahl für TCP und welche für eine "
            "serielle Schnittstelle steht, ist nicht dokumentiert.",
            "1 to 4, passed on to the Modbus slave; which number stands for TCP and which for a serial port "
            "is not documented."),
    warning("Modbus_SlaveID", "0 ist in Modbus die Rundsprechadresse, auf die kein Slave antwortet.",
            "0 is the Modbus broadcast address, to which no slave responds."),
    unknown("vBE{mo,moc} vBEF{mo,moc} vBAF{mo,moc} vBA{mo,moc} y_BEmo y_vBEFmo y_vBAFmo y_vBAmo y_LEDmo UImo "
            "UImo2 y_vBEmow y_vBEmowc y_vTIMEmow vBA{mo,moc}_VIRT vBE{mo,moc}_VIRT vMWRmo_VIRT vMWWmo_VIRT",
            "Ob der Offset ab 0 oder ab 1 zählt, ist nicht dokumentiert. 65536 wird angenommen, "
            "Modbus-Adressen enden bei 65535. Überlappende Bereiche werden nicht abgelehnt.",
            "Whether the offset counts from 0 or 1 is not documented. 65536 is accepted, but Modbus "
            "addresses end at 65535. Overlapping blocks are not refused."),
    unknown("aUIgmo wUIgmo dwUIgmo",
            "Was der Bereich enthält und in welchem Zahlenformat, ist nicht dokumentiert. 65536 wird "
            "angenommen, Modbus-Adressen enden bei 65535.",
            "What the block contains, and in which number format, is not documented. 65536 is accepted, but "
            "Modbus addresses end at 65535."),
    unknown("UImo UImo2", "Anordnung und Zahlenformat der Messwerte sind nicht dokumentiert.",
            "The order and number format of the measured values are not documented."),
    unknown("Modbus_StoreTime", "Welche Werte gespeichert werden, ist nicht dokumentiert.",
            "Which values are stored is not documented."),
};

} // namespace talux::parameters

#endif
