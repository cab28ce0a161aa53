// Firewall per interface, file transfer, boot.
#ifndef TALUX_TEXTS_FIREWALL_H
#define TALUX_TEXTS_FIREWALL_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kFirewall[] = {
    value("Firewall_dis", {"Firewall aus", "Firewall off"},
          {"Standard-Firewall des Geräts abschalten", "Switch the device's standard firewall off"}),
    value("FW_{ETH0,ETH1,ETHW=WLAN}_com", {"Bedienung {n}", "Device access {n}"},
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
    value("FW_{ETH0,ETH1,ETHW=WLAN}_ACT", {"Einschränkung {n}", "Restriction {n}"},
          {"Zugriff über {n} auf das angegebene Netz einschränken",
           "Restrict access via {n} to the given network"}),
    value("FW_{ETH0,ETH1,ETHW=WLAN}_NET", {"Erlaubtes Netz {n}", "Allowed network {n}"},
          {"Adresse des Netzes, aus dem Zugriffe über {n} erlaubt sind",
           "Address of the network from which access via {n} is allowed"}),
    value("FW_{ETH0,ETH1,ETHW=WLAN}_MASK", {"Maske erl. Netz {n}", "Mask allowed net {n}"},
          {"Netzmaske des Netzes, aus dem Zugriffe über {n} erlaubt sind",
           "Netmask of the network from which access via {n} is allowed"}),
    value("FW_BLOCK", {"Sperrzeit", "Blocking time"},
          {"Dauer der Sperre eines Absenders nach einem Angriff; -1 = unbegrenzt",
           "Time for which a sender is blocked after an attack; -1 = forever"},
          "s"),
    value("ftp_pasv_pro", {"FTP-PASV-Prüfung aus", "FTP PASV check off"},
          {"Prüfung der Gegenstelle bei passiven FTP-Verbindungen abschalten",
           "Switch off the check of the peer of passive FTP connections"}),
    value("ftp_log", {"FTP protokollieren", "FTP logging"},
          {"Übertragungen des FTP-Servers protokollieren", "Log the transfers of the FTP server"}),
    value("ftp_min_passive", {"FTP-Port passiv min.", "FTP passive port min."},
          {"Kleinster Port für passive FTP-Verbindungen", "Lowest port for passive FTP connections"}),
    value("ftp_max_passive", {"FTP-Port passiv max.", "FTP passive port max."},
          {"Größter Port für passive FTP-Verbindungen", "Highest port for passive FTP connections"}),
    value("Disable_boot_timeout", {"Startwartezeit aus", "Boot timeout off"},
          {"Wartezeit des Startprogramms beim Einschalten abschalten",
           "Switch off the wait of the boot program at power-up"}),
};

} // namespace talux::texts

#endif
