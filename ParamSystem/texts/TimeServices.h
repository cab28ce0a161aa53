// Time zone, time servers, receivers and senders of the time.
#ifndef TALUX_TEXTS_TIMESERVICES_H
#define TALUX_TEXTS_TIMESERVICES_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kTimeServices[] = {
    value("TIMEZONE", {"Zeitzone", "Time zone"},
          {"Voller Pfad der Zonendatei; fehlt die Datei, gilt UTC",
           "Full path of the zone file; UTC if the file is missing"}),
    value("NTP{1..2}", {"NTP-Server {n}", "NTP server {n}"},
          {"Adresse von NTP-Zeitserver {n}; 0.0.0.0 = keiner",
           "Address of NTP time server {n}; 0.0.0.0 = none"}),
    value("NTP_RTC", {"NTP mit Geräteuhr", "NTP with device clock"},
          {"Batteriegestützte Uhr des Geräts als weitere NTP-Quelle verwenden",
           "Use the device's battery-backed clock as a further NTP source"}),
    value("TIMESERVER_active", {"Zeitserver aktiv", "Time server active"},
          {"Schaltet den Zeitserver ein (Wirkung nicht dokumentiert)",
           "Switches the time server on (effect not documented)"}),
    value("RTCSET_UTC_activ", {"Geräteuhr in UTC", "Device clock in UTC"},
          {"Batteriegestützte Uhr in UTC stellen", "Set the battery-backed clock in UTC"}),
    value("DCF77_activ", {"DCF77 aktiv", "DCF77 active"},
          {"DCF77-Empfänger stellt die Uhr; NTP wird dann nicht gestartet",
           "A DCF77 receiver sets the clock; NTP is then not started"}),
    choice("DCF77_port", {"DCF77-Port", "DCF77 port"},
           {"Serielle Schnittstelle des DCF77-Empfängers", "Serial port of the DCF77 receiver"},
           {"Port 1|Port 2|Port 3", "Port 1|Port 2|Port 3"}),
    value("VELMO_activ", {"VELMO-Sender aktiv", "VELMO sender active"},
          {"Uhrzeit zyklisch als VELMO-Telegramm über eine serielle Schnittstelle senden",
           "Send the time cyclically as a VELMO telegram via a serial port"}),
    choice("VELMO_port", {"VELMO-Port", "VELMO port"},
           {"Serielle Schnittstelle, auf der die Uhrzeit gesendet wird",
            "Serial port on which the time is sent"},
           {"Port 1|Port 2|Port 3", "Port 1|Port 2|Port 3"}),
    value("VELMO_tsyncdelay", {"VELMO-Verzögerung", "VELMO sync delay"},
          {"Synchronisationsverzögerung (tsyncdelay) in der Form 00:01",
           "Synchronisation delay (tsyncdelay) in the form 00:01"}),
    value("VELMO_format", {"VELMO-Format", "VELMO format"},
          {"Aufbau des Zeittelegramms, Zahl 1 oder 2", "Layout of the time telegram, number 1 or 2"}),
    value("VELMO_cstring", {"VELMO-Zeittext", "VELMO time text"},
          {"Aufbau von Datum und Zeit im Telegramm, mit Platzhaltern wie %d oder %H",
           "Layout of date and time in the telegram, with placeholders such as %d or %H"}),
    value("Modbustime_activ", {"Modbus-Zeit aktiv", "Modbus time active"},
          {"Uhrzeit zyklisch in ein Modbus-Register anderer Geräte schreiben",
           "Write the time cyclically to a Modbus register of other devices"}),
    choice("Modbustime_port", {"Modbus-Zeit Port", "Modbus time port"},
           {"Serielle Schnittstelle, auf der die Uhrzeit geschrieben wird",
            "Serial port on which the time is written"},
           {"Port 1|Port 2", "Port 1|Port 2"}),
    value("Modbustime_reg", {"Modbus-Zeit Register", "Modbus time register"},
          {"Erstes Register, in das die Uhrzeit geschrieben wird",
           "First register that the time is written to"}),
    value("Modbustime_tsyncdelay", {"Modbus-Zeit Verzögerung", "Modbus time sync delay"},
          {"Synchronisationsverzögerung (tsyncdelay) in der Form 01:00",
           "Synchronisation delay (tsyncdelay) in the form 01:00"}),
    value("log_time_change", {"Zeitänderungen loggen", "Log time changes"},
          {"Änderungen der Uhrzeit in das Logbuch schreiben", "Write changes of the time to the logbook"}),
};

} // namespace talux::texts

#endif
