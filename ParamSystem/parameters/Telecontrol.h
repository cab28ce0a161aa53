// Telecontrol: IEC 60870-5-101, -103, -104 with four redundancy groups, DNP3, GOOSE.
#ifndef TALUX_PARAMETERS_TELECONTROL_H
#define TALUX_PARAMETERS_TELECONTROL_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

// Texts that several rows share.
inline constexpr Words kActive{{"{n} aktiv", "Protokoll {n} zur Leittechnik einschalten"},
                               {"{n} active", "Switch on the {n} protocol to the control system"}};
inline constexpr Words kPort{
    {"Port {n}", "Serielle Schnittstelle, auf der {n} läuft", "Port 1|Port 2|Port 3"},
    {"{n} port", "Serial port that carries {n}", "Port 1|Port 2|Port 3"}};
inline constexpr Words kStationAddress{
    {"Stationsadresse {n}", "Gemeinsame Adresse der ASDU, unter der die Station mit {n} antwortet"},
    {"{n} station address", "Common address of the ASDU under which the station answers in {n}"}};
inline constexpr Words kPiUpdate{
    {"pi_update {n}", "Schalter pi_update von {n}, dem Namen nach die Aktualisierung des Prozessabbilds"},
    {"pi_update {n}", "Switch pi_update of {n}, by its name the update of the process image"}};
inline constexpr Words kRedundGroupActive{
    {"Redundanzgruppe {n} aktiv", "Redundanzgruppe {n} nach IEC 60870-5-104 verwenden"},
    {"Redund. group {n} active", "Use redundancy group {n} according to IEC 60870-5-104"}};
inline constexpr Words kGroupTCPPort{
    {"TCP-Port Gruppe {n}", "TCP-Port, auf dem Redundanzgruppe {n} Verbindungen annimmt"},
    {"Group {n} TCP port", "TCP port on which redundancy group {n} accepts connections"}};
inline constexpr Words kGroupIPAddress{
    {"IP-Adresse Gruppe {n}", "Alias-Adresse des Geräts für Redundanzgruppe {n}; 0.0.0.0 = keine"},
    {"Group {n} IP address", "Alias address of the device for redundancy group {n}; 0.0.0.0 = none"}};
inline constexpr Words kGroupNetmask{
    {"Netzmaske Gruppe {n}", "Netzmaske der Alias-Adresse von Redundanzgruppe {n}"},
    {"Group {n} netmask", "Netmask of the alias address of redundancy group {n}"}};
inline constexpr Words kGroupGateway{
    {"Gateway Gruppe {n}", "Gateway in das Netz von Redundanzgruppe {n}; 0.0.0.0 = keines"},
    {"Group {n} gateway", "Gateway to the network of redundancy group {n}; 0.0.0.0 = none"}};
inline constexpr Words kGroupControlCentre{
    {"Leitstelle Gruppe {n}", "Adresse der Leitstelle, die sich mit Redundanzgruppe {n} verbinden darf"},
    {"Group {n} control centre", "Address of the control centre that may connect to redundancy group {n}"}};
inline constexpr Words kFurtherDNP3Master{
    {"Weiterer DNP3-Master {n}", "Adresse des weiteren DNP3-Masters {n}, der sich verbinden darf"},
    {"Further DNP3 master {n}", "Address of the further DNP3 master {n} that may connect"}};

inline constexpr Row kTelecontrolRows[] = {
    flag(8043, "T101_active", {}, kActive("IEC 101")),
    choice(10035, "T101_port", {.names = "Port_1|Port_2|Port_3", .def = 2}, kPort("IEC 101")),
    number(6064, "T101_cotfl", {.def = 1, .min = 1, .max = 2},
           {{"Länge Ursache (COT)", "Anzahl der Oktette der Übertragungsursache"},
            {"Length of COT", "Number of octets of the cause of transmission"}}),
    number(6065, "T101_cafl", {.def = 2, .min = 1, .max = 2},
           {{"Länge ASDU-Adresse (CA)", "Anzahl der Oktette der gemeinsamen Adresse der ASDU"},
            {"Length of CA (ASDU)", "Number of octets of the common address of the ASDU"}}),
    number(6066, "T101_ioafl", {.def = 3, .min = 1, .max = 3},
           {{"Länge Objektadresse IOA", "Anzahl der Oktette der Informationsobjektadresse"},
            {"Length of IOA", "Number of octets of the information object address"}}),
    choice(10036, "T101_balance", {.choices = 2},
           {{"Übertragungsprozedur", "Symmetrische oder unsymmetrische Übertragung, Zahl 1 oder 2"},
            {"Transmission procedure", "Balanced or unbalanced transmission, number 1 or 2"}}),
    choice(10037, "T101_dirbit", {.choices = 2},
           {{"Richtungsbit", "Richtungsbit der Verbindungsschicht, Zahl 1 oder 2"},
            {"Direction bit", "Direction bit of the link layer, number 1 or 2"}}),
    choice(10038, "T101_adrfl", {.choices = 2},
           {{"Länge Linkadresse", "Länge der Adresse der Verbindungsschicht, Zahl 1 oder 2"},
            {"Length of link address", "Length of the address of the link layer, number 1 or 2"}}),
    number(6067, "T101_adr", {.def = 1, .min = 0, .max = 65534, .is = kIndividual},
           {{"Linkadresse IEC 101", "Adresse der Station auf der Verbindungsschicht"},
            {"IEC 101 link address", "Address of the station on the link layer"}}),
    number(6068, "T101_station_ca", {.def = 1, .is = kIndividual}, kStationAddress("IEC 101")),
    flag(8044, "T101_pi_update", {}, kPiUpdate("IEC 101")),
    flag(8045, "T103_active", {}, kActive("IEC 103")),
    choice(10039, "T103_port", {.names = "Port_1|Port_2|Port_3", .def = 3}, kPort("IEC 103")),
    number(6069, "T103_station_ca", {.def = 1, .min = 0, .max = 255, .is = kIndividual},
           kStationAddress("IEC 103")),
    flag(8046, "T103_pi_update", {}, kPiUpdate("IEC 103")),
    flag(8047, "T104_active", {}, kActive("IEC 104")),
    choice(10040, "T104_ethernet", {.names = "System_Ethernet|Ethernet_USB", .min = 1},
           {{"Schnittstelle IEC 104", "Schnittstelle der Alias-Adressen: ETH0 oder der Adapter an USB (ETH1)",
             "System-Ethernet|Ethernet-USB"},
            {"IEC 104 interface", "Interface of the alias addresses: ETH0 or the adapter on USB (ETH1)",
             "System Ethernet|Ethernet USB"}}),
    number(6070, "T104_station_ca", {.def = 1, .is = kIndividual}, kStationAddress("IEC 104")),
    number(6071, "T104_port", {.def = 2404},
           {{"TCP-Port IEC 104", "TCP-Port, auf dem die Station Verbindungen der Leitstelle annimmt"},
            {"IEC 104 TCP port", "TCP port on which the station accepts connections of the control centre"}}),
    number(6072, "T104_T0", {.def = 30, .min = 1, .max = 255, .unit = "s"},
           {{"IEC 104 Zeit T0", "Zeitüberwachung des Verbindungsaufbaus"},
            {"IEC 104 time T0", "Time-out of establishing a connection"}}),
    number(6073, "T104_T1", {.def = 15, .min = 1, .max = 255, .unit = "s"},
           {{"IEC 104 Zeit T1", "Zeit, in der eine gesendete APDU quittiert sein muss"},
            {"IEC 104 time T1", "Time within which a sent APDU must be acknowledged"}}),
    number(6074, "T104_T2", {.def = 10, .min = 1, .max = 255, .unit = "s"},
           {{"IEC 104 Zeit T2", "Zeit, nach der empfangene APDUs spätestens quittiert werden"},
            {"IEC 104 time T2", "Time after which received APDUs are acknowledged at the latest"}}),
    number(6075, "T104_T3", {.def = 20, .min = 1, .max = 2880, .unit = "s"},
           {{"IEC 104 Zeit T3", "Ruhezeit, nach der ein Testtelegramm gesendet wird"},
            {"IEC 104 time T3", "Idle time after which a test frame is sent"}}),
    number(6076, "T104_K", {.def = 12, .min = 1, .max = 32767, .unit = "APDUs"},
           {{"IEC 104 Fenster k", "Größte Zahl unquittierter gesendeter APDUs"},
            {"IEC 104 window k", "Largest number of APDUs sent without acknowledgement"}}),
    number(6077, "T104_W", {.def = 8, .min = 1, .max = 32767, .unit = "APDUs"},
           {{"IEC 104 Fenster w", "Empfangene APDUs, nach denen spätestens quittiert wird"},
            {"IEC 104 window w", "Received APDUs after which an acknowledgement is sent at the latest"}}),
    address(16009, "T104_all_ip", {.def = "0.0.0.0"},
            {{"Erlaubte Leitstelle", "Adresse der Leitstelle, die sich verbinden darf"},
             {"Allowed control centre", "Address of the control centre that is allowed to connect"}}),
    flag(8048, "T104_pi_update", {}, kPiUpdate("IEC 104")),
    flag(8049, "T104_eth_bind", {},
         {{"IEC 104 an Schnittst.", "Verbindungen nur auf der gewählten Schnittstelle annehmen"},
          {"IEC 104 bind interface", "Accept connections on the chosen interface only"}}),
    flag(8050, "T104_red_active_1", {}, kRedundGroupActive("1")),
    number(6078, "T104_port_1", {.def = 2404}, kGroupTCPPort("1")),
    address(16010, "T104_ETH_IP_1", {.def = "0.0.0.0", .is = kIndividual}, kGroupIPAddress("1")),
    address(16011, "T104_ETH_MA_1", {.def = "255.255.255.0", .form = kNetmask, .is = kIndividual},
            kGroupNetmask("1")),
    address(16012, "T104_ETH_GW_1", {.def = "0.0.0.0", .is = kIndividual}, kGroupGateway("1")),
    address(16013, "T104_all_ip_1", {.def = "0.0.0.0"}, kGroupControlCentre("1")),
    flag(8051, "T104_red_active_2", {}, kRedundGroupActive("2")),
    number(6079, "T104_port_2", {.def = 2404}, kGroupTCPPort("2")),
    address(16014, "T104_ETH_IP_2", {.def = "0.0.0.0", .is = kIndividual}, kGroupIPAddress("2")),
    address(16015, "T104_ETH_MA_2", {.def = "255.255.255.0", .form = kNetmask, .is = kIndividual},
            kGroupNetmask("2")),
    address(16016, "T104_ETH_GW_2", {.def = "0.0.0.0", .is = kIndividual}, kGroupGateway("2")),
    address(16017, "T104_all_ip_2", {.def = "0.0.0.0"}, kGroupControlCentre("2")),
    flag(8052, "T104_red_active_3", {}, kRedundGroupActive("3")),
    number(6080, "T104_port_3", {.def = 2404}, kGroupTCPPort("3")),
    address(16018, "T104_ETH_IP_3", {.def = "0.0.0.0", .is = kIndividual}, kGroupIPAddress("3")),
    address(16019, "T104_ETH_MA_3", {.def = "255.255.255.0", .form = kNetmask, .is = kIndividual},
            kGroupNetmask("3")),
    address(16020, "T104_ETH_GW_3", {.def = "0.0.0.0", .is = kIndividual}, kGroupGateway("3")),
    address(16021, "T104_all_ip_3", {.def = "0.0.0.0"}, kGroupControlCentre("3")),
    flag(8053, "T104_red_active_4", {}, kRedundGroupActive("4")),
    number(6081, "T104_port_4", {.def = 2404}, kGroupTCPPort("4")),
    address(16022, "T104_ETH_IP_4", {.def = "0.0.0.0", .is = kIndividual}, kGroupIPAddress("4")),
    address(16023, "T104_ETH_MA_4", {.def = "255.255.255.0", .form = kNetmask, .is = kIndividual},
            kGroupNetmask("4")),
    address(16024, "T104_ETH_GW_4", {.def = "0.0.0.0", .is = kIndividual}, kGroupGateway("4")),
    address(16025, "T104_all_ip_4", {.def = "0.0.0.0"}, kGroupControlCentre("4")),
    flag(8054, "DNP3_active", {}, kActive("DNP3")),
    choice(10041, "DNP3_DEVICE", {.choices = 5, .min = 1},
           {{"DNP3-Verbindung", "Schnittstelle, über die DNP3 läuft, Zahl 1 bis 5"},
            {"DNP3 connection", "Interface that carries DNP3, number 1 to 5"}}),
    number(6082, "DNP3_PORT", {.def = 20000},
           {{"TCP-Port DNP3", "TCP-Port, auf dem die DNP3-Außenstation Verbindungen annimmt"},
            {"DNP3 TCP port", "TCP port on which the DNP3 outstation accepts connections"}}),
    address(16026, "DNP3_ALL_IP", {.def = "192.168.55.1"},
            {{"DNP3-Master", "Adresse des DNP3-Masters, der sich verbinden darf"},
             {"DNP3 master", "Address of the DNP3 master that may connect"}}),
    address(16027, "DNP3_ALL_IP_1", {.def = "192.168.55.1", .init = "192.168.55.2"}, kFurtherDNP3Master("1")),
    address(16028, "DNP3_ALL_IP_2", {.def = "192.168.55.1", .init = "192.168.55.3"}, kFurtherDNP3Master("2")),
    number(6083, "DNP3_LINK", {.def = 103, .is = kIndividual},
           {{"DNP3-Linkadresse", "Adresse der Außenstation auf der DNP3-Verbindungsschicht"},
            {"DNP3 link address", "Address of the outstation on the DNP3 link layer"}}),
    number(6084, "DNP3_LINK_MA", {.def = 1},
           {{"Linkadresse Master", "Adresse des Masters auf der DNP3-Verbindungsschicht"},
            {"Master link address", "Address of the master on the DNP3 link layer"}}),
    number(6085, "DNP3_TOAL", {.def = 800, .unit = "ms"},
           {{"DNP3 Bestätigungszeit",
             "Längste Wartezeit auf die Bestätigung der Anwendungsschicht (application confirm timeout)"},
            {"DNP3 confirm timeout",
             "Longest wait for the confirmation of the application layer (application confirm timeout)"}}),
    number(6086, "DNP3_TOSO", {.def = 5000, .unit = "ms"},
           {{"DNP3 Auswahlzeit",
             "Längste Zeit zwischen Auswahl und Ausführung eines Befehls (select before operate)"},
            {"DNP3 select timeout",
             "Longest time between select and operate of a command (select before operate)"}}),
    number(6087, "DNP3_TOIC", {.def = 20, .min = 2, .max = 1000, .unit = "ms"},
           {{"DNP3 Zeichenabstand", "Größte Pause zwischen zwei Zeichen eines Telegramms"},
            {"DNP3 character timeout", "Longest pause between two characters of a frame"}}),
    number(6088, "DNP3_TTRE", {.def = 1000, .unit = "ms"},
           {{"DNP3 Wiederholzeit", "Zeit bis zur Wiederholung eines unbestätigten Telegramms"},
            {"DNP3 retry time", "Time until an unconfirmed frame is repeated"}}),
    flag(8055, "GOOSE_active", {},
         {{"GOOSE aktiv", "GOOSE-Meldungen einschalten"}, {"GOOSE active", "Switch on GOOSE messages"}}),
};

inline constexpr Note kTelecontrolNotes[] = {
    unknown(
        "DNP3_DEVICE",
        "1 bis 5, wird an das DNP3-Programm weitergegeben; welche Zahl für welche Schnittstelle steht, ist "
        "nicht dokumentiert.",
        "1 to 5, passed on to the DNP3 program; which number stands for which interface is not documented."),
    unknown("T101_balance T101_dirbit T101_adrfl",
            "1 oder 2, wird an das IEC-101-Programm weitergegeben; die Bedeutung der Zahlen ist nicht "
            "dokumentiert. Mit der Leitstelle abstimmen und prüfen.",
            "1 or 2, passed on to the IEC 101 program; the meaning of the numbers is not documented. Agree "
            "it with the control centre and test."),
    warning(
        "T104_T{0..3}",
        "Ganze Sekunden; ein Bruchteil fällt weg. Die Norm verlangt T2 < T1; beim Schreiben wird das nicht "
        "geprüft.",
        "Whole seconds; a fraction is cut off. The standard requires T2 < T1; a write does not check it."),
    advice("T104_K T104_W",
           "Die Norm empfiehlt w höchstens zwei Drittel von k; beim Schreiben wird das nicht geprüft.",
           "The standard recommends a w of at most two thirds of k; a write does not check it."),
    unknown("T104_all_ip T104_all_ip_{1..4}", "Wen 0.0.0.0 (Werkswert) zulässt, ist nicht dokumentiert.",
            "Who is admitted with 0.0.0.0 (factory value) is not documented."),
    warning("T104_ethernet",
            "Nach dem Umschalten bleiben die Alias-Adressen der bisherigen Schnittstelle bis zum Neustart "
            "bestehen.",
            "After a change, the alias addresses of the previous interface remain until the next restart."),
    unknown("T104_eth_bind", "Die Wirkung ist aus dem Namen gelesen.", "The effect is read from the name."),
    unknown("T101_pi_update T103_pi_update T104_pi_update", "Wirkung nicht dokumentiert.",
            "The effect is not documented."),
    warning("T104_ETH_IP_{1..4} T104_ETH_MA_{1..4} T104_ETH_GW_{1..4}",
            "Wird nicht geprüft. Die Alias-Adresse wird nur eingerichtet, wenn Adresse und Maske von 0.0.0.0 "
            "verschieden sind, und erst, wenn die Netzwerkeinstellungen angewendet werden.",
            "Not checked. The alias address is set up only if address and mask differ from 0.0.0.0, and only "
            "when the network settings are applied."),
    advice("DNP3_ALL_IP_{1..2}",
           "Der Werkswert ist derselbe wie bei DNP3_ALL_IP; 192.168.55.2 und 192.168.55.3 sind Anfangswerte "
           "für die übrigen Programme des Geräts.",
           "The factory value is that of DNP3_ALL_IP; 192.168.55.2 and 192.168.55.3 are initial values for "
           "the device's other programs."),
    unknown("DNP3_TOAL DNP3_TOSO DNP3_TOIC DNP3_TTRE", "Was die Zeit überwacht, ist aus dem Namen gelesen.",
            "What the time supervises is read from the name."),
};

} // namespace talux::parameters

#endif
