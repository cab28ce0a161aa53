// Firewall per interface, file transfer, boot.
#ifndef TALUX_TEXTS_FIREWALL_H
#define TALUX_TEXTS_FIREWALL_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kFirewall[] = {
    value("Firewall_dis", {"Firewall aus", "Firewall off"},
          {"Standard-Firewall des Geräts abschalten", "Switch the device's standard firewall off"}),
    value("FW_{ETH0,ETH1,ETHW=WLAN}_com", {"Gerätezugriff über {n}", "Device access via {n}"},
          {"Gerätekommunikation (Ports 3002, 3005, 45454, FTP) über {n} erlauben",
           "Allow device communication (ports 3002, 3005, 45454, FTP) via {n}"}),
    value("FW_{ETH0,ETH1,ETHW=WLAN}_ssh", {"SSH über {n}", "SSH via {n}"},
          {"SSH-Zugriff (Port 22) über {n} erlauben", "Allow SSH access (port 22) via {n}"}),
    value("FW_{ETH0,ETH1,ETHW=WLAN}_vnc", {"VNC über {n}", "VNC via {n}"},
          {"VNC-Zugriff (Port 5900) über {n} erlauben", "Allow VNC access (port 5900) via {n}"}),
    value("FW_{ETH0,ETH1,ETHW=WLAN}_mod", {"Modbus über {n}", "Modbus via {n}"},
          {"Modbus-Verbindungen über {n} erlauben", "Allow Modbus connections via {n}"}),
    value(
        "FW_{ETH0,ETH1,ETHW=WLAN}_104", {"IEC 104 über {n}", "IEC 104 via {n}"},
        {"Verbindungen nach IEC 60870-5-104 über {n} erlauben", "Allow IEC 60870-5-104 connections via {n}"}),
    value("FW_{ETH0,ETH1,ETHW=WLAN}_DNP3", {"DNP3 über {n}", "DNP3 via {n}"},
          {"DNP3-Verbindungen über {n} erlauben", "Allow DNP3 connections via {n}"}),
    value("FW_{ETH0,ETH1,ETHW=WLAN}_ACT", {"Netzbeschränkung {n}", "{n} source network"},
          {"Zugriff über {n} auf das angegebene Netz einschränken",
           "Restrict access via {n} to the given network"}),
    value("FW_{ETH0,ETH1,ETHW=WLAN}_NET", {"Firewall-Netz {n}", "{n} firewall network"},
          {"Adresse des Netzes, aus dem Zugriffe über {n} erlaubt sind",
           "Address of the network from which access via {n} is allowed"}),
    value("FW_{ETH0,ETH1,ETHW=WLAN}_MASK", {"Firewall-Maske {n}", "{n} firewall mask"},
          {"Netzmaske des Netzes, aus dem Zugriffe über {n} erlaubt sind",
           "Netmask of the network from which access via {n} is allowed"}),
    value("FW_BLOCK", {"Firewall-Sperrzeit", "Firewall blocking time"},
          {"Dauer der Sperre nach einem Angriff", "Duration of the blocking after an attack"}, "s"),
    value("ftp_pasv_pro", {"FTP-PASV-Prüfung aus", "FTP PASV check off"},
          {"Prüfung passiver FTP-Verbindungen (PASV) abschalten",
           "Switch off the check of passive FTP connections (PASV)"}),
    value("ftp_log", {"FTP protokollieren", "FTP logging"},
          {"Protokoll des FTP-Servers einschalten", "Switch on the log of the FTP server"}),
    value("ftp_min_passive", {"Kleinster FTP-Passivport", "Lowest passive FTP port"},
          {"Beginn des Portbereichs für passive FTP-Verbindungen",
           "Start of the port range for passive FTP connections"}),
    value("ftp_max_passive", {"Größter FTP-Passivport", "Highest passive FTP port"},
          {"Ende des Portbereichs für passive FTP-Verbindungen",
           "End of the port range for passive FTP connections"}),
    value("Disable_boot_timeout", {"Boot-Timeout aus", "Boot timeout off"},
          {"Zeitüberwachung beim Start des Geräts abschalten",
           "Switch off the time-out at the start of the device"}),
};

} // namespace talux::texts

#endif
