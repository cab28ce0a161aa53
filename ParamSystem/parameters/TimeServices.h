// Time zone, time servers and receivers, and the time that the device sends to others.
#ifndef TALUX_PARAMETERS_TIME_SERVICES_H
#define TALUX_PARAMETERS_TIME_SERVICES_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

inline constexpr Row kTimeServicesRows[] = {
    text(9024, "TIMEZONE", {.length = 80, .def = "/usr/share/zoneinfo/UTC", .init = "0"},
         {{"Zeitzone", "Voller Pfad der Zonendatei; fehlt die Datei, gilt UTC"},
          {"Time zone", "Full path of the zone file; UTC if the file is missing"}}),
    address(16007, "NTP{1..2}", {.def = "0.0.0.0"},
            {{"NTP-Server {n}", "Adresse von NTP-Zeitserver {n}; 0.0.0.0 = keiner"},
             {"NTP server {n}", "Address of NTP time server {n}; 0.0.0.0 = none"}}),
    flag(8035, "NTP_RTC", {.def = kOn},
         {{"NTP mit Geräteuhr", "Batteriegestützte Uhr des Geräts als weitere NTP-Quelle verwenden"},
          {"NTP with device clock", "Use the device's battery-backed clock as a further NTP source"}}),
    flag(8036, "TIMESERVER_active", {.def = kOn},
         {{"Zeitserver aktiv", "Schaltet den Zeitserver ein (Wirkung nicht dokumentiert)"},
          {"Time server active", "Switches the time server on (effect not documented)"}}),
    flag(8037, "RTCSET_UTC_activ", {},
         {{"Geräteuhr in UTC", "Batteriegestützte Uhr in UTC stellen"},
          {"Device clock in UTC", "Set the battery-backed clock in UTC"}}),
    flag(8038, "DCF77_activ", {},
         {{"DCF77 aktiv", "DCF77-Empfänger stellt die Uhr; NTP wird dann nicht gestartet"},
          {"DCF77 active", "A DCF77 receiver sets the clock; NTP is then not started"}}),
    choice(10013, "DCF77_port", {.names = "Port_1|Port_2|Port_3", .min = 1, .def = 3},
           {{"DCF77-Port", "Serielle Schnittstelle des DCF77-Empfängers", "Port 1|Port 2|Port 3"},
            {"DCF77 port", "Serial port of the DCF77 receiver", "Port 1|Port 2|Port 3"}}),
    flag(8039, "VELMO_activ", {},
         {{"VELMO-Sender aktiv",
           "Uhrzeit zyklisch als VELMO-Telegramm über eine serielle Schnittstelle senden"},
          {"VELMO sender active", "Send the time cyclically as a VELMO telegram via a serial port"}}),
    choice(
        10014, "VELMO_port", {.names = "Port_1|Port_2|Port_3"},
        {{"VELMO-Port", "Serielle Schnittstelle, auf der die Uhrzeit gesendet wird", "Port 1|Port 2|Port 3"},
         {"VELMO port", "Serial port on which the time is sent", "Port 1|Port 2|Port 3"}}),
    text(9025, "VELMO_tsyncdelay", {.length = 6, .def = "00:01"},
         {{"VELMO-Verzögerung", "Synchronisationsverzögerung (tsyncdelay) in der Form 00:01"},
          {"VELMO sync delay", "Synchronisation delay (tsyncdelay) in the form 00:01"}}),
    choice(10015, "VELMO_format", {.choices = 2, .min = 1},
           {{"VELMO-Format", "Aufbau des Zeittelegramms, Zahl 1 oder 2"},
            {"VELMO format", "Layout of the time telegram, number 1 or 2"}}),
    text(
        9026, "VELMO_cstring", {.def = "%d.%m.%y %H:%M:%S"},
        {{"VELMO-Zeittext", "Aufbau von Datum und Zeit im Telegramm, mit Platzhaltern wie %d oder %H"},
         {"VELMO time text", "Layout of date and time in the telegram, with placeholders such as %d or %H"}}),
    flag(8040, "Modbustime_activ", {},
         {{"Modbus-Zeit aktiv", "Uhrzeit zyklisch in ein Modbus-Register anderer Geräte schreiben"},
          {"Modbus time active", "Write the time cyclically to a Modbus register of other devices"}}),
    choice(10016, "Modbustime_port", {.names = "Port_1|Port_2", .min = 1},
           {{"Modbus-Zeit Port", "Serielle Schnittstelle, auf der die Uhrzeit geschrieben wird",
             "Port 1|Port 2"},
            {"Modbus time port", "Serial port on which the time is written", "Port 1|Port 2"}}),
    number(6033, "Modbustime_reg", {.def = 2800, .min = 1, .max = 10000},
           {{"Modbus-Zeit Register", "Erstes Register, in das die Uhrzeit geschrieben wird"},
            {"Modbus time register", "First register that the time is written to"}}),
    text(9027, "Modbustime_tsyncdelay", {.length = 6, .def = "01:00"},
         {{"Modbus-Zeit Verzögerung", "Synchronisationsverzögerung (tsyncdelay) in der Form 01:00"},
          {"Modbus time sync delay", "Synchronisation delay (tsyncdelay) in the form 01:00"}}),
    flag(8041, "log_time_change", {},
         {{"Zeitänderungen loggen", "Änderungen der Uhrzeit in das Logbuch schreiben"},
          {"Log time changes", "Write changes of the time to the logbook"}}),
};

inline constexpr Note kTimeServicesNotes[] = {
    unknown("VELMO_format",
            "1 oder 2, wird an den Zeitsender weitergegeben; der Aufbau der beiden Formate ist nicht "
            "dokumentiert.",
            "1 or 2, passed on to the time sender; the layout of the two formats is not documented."),
    warning(
        "TIMEZONE",
        "Gilt erst, wenn die Netzwerkeinstellungen angewendet werden (Schreiben einer Schnittstellenadresse "
        "oder load_ip), und übersteht einen Neustart erst nach save. Fehlt die Datei, wird UTC eingestellt.",
        "Takes effect only when the network settings are applied (a write of an interface address or "
        "load_ip) and survives a restart only after save. If the file is missing, UTC is set."),
    advice("NTP1", "Von diesem Server wird die Uhr einmal gestellt, bevor die laufende Nachführung beginnt.",
           "The clock is set once from this server before the continuous adjustment starts."),
    advice("DCF77_activ", "Ein schon laufendes NTP wird nicht angehalten.",
           "An NTP daemon that is already running is not stopped."),
    unknown("TIMESERVER_active",
            "Ob das Gerät damit Zeit abgibt oder bezieht, ist nicht dokumentiert; vor dem Abschalten klären.",
            "Whether the device then provides time or obtains it is not documented; find out before "
            "switching it off."),
    warning("RTCSET_UTC_activ",
            "Diese Bibliothek stellt die Uhr in UTC, was auch immer hier steht; welches Programm den "
            "Schalter auswertet, ist nicht dokumentiert.",
            "This library sets the clock in UTC whatever the value is; which program uses the switch is not "
            "documented."),
    unknown("VELMO_tsyncdelay Modbustime_tsyncdelay",
            "Ob die beiden Zahlen Stunden und Minuten oder Minuten und Sekunden sind und ob sie einen "
            "Abstand oder eine Verzögerung angeben, ist nicht dokumentiert.",
            "Whether the two numbers are hours and minutes or minutes and seconds, and whether they are an "
            "interval or a delay, is not documented."),
};

} // namespace talux::parameters

#endif
