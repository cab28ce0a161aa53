// Who may reach the device: per interface (ETHW is WLAN0) the services that are let in and the network that
// access is restricted to while FW_.._ACT is on; the FTP server.
#ifndef TALUX_PARAMETERS_FIREWALL_H
#define TALUX_PARAMETERS_FIREWALL_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

// Texts that several rows share.
inline constexpr Words kDeviceAccess{
    {"Gerätezugriff über {n}", "Gerätekommunikation (Ports 3002, 3005, 45454, FTP) über {n} erlauben"},
    {"Device access via {n}", "Allow device communication (ports 3002, 3005, 45454, FTP) via {n}"}};
inline constexpr Words kSSH{{"SSH über {n}", "SSH-Zugriff (Port 22) über {n} erlauben"},
                            {"SSH via {n}", "Allow SSH access (port 22) via {n}"}};
inline constexpr Words kVNC{{"VNC über {n}", "VNC-Zugriff (Port 5900) über {n} erlauben"},
                            {"VNC via {n}", "Allow VNC access (port 5900) via {n}"}};
inline constexpr Words kModbus{{"Modbus über {n}", "Modbus-Verbindungen über {n} erlauben"},
                               {"Modbus via {n}", "Allow Modbus connections via {n}"}};
inline constexpr Words kIEC104{{"IEC 104 über {n}", "Verbindungen nach IEC 60870-5-104 über {n} erlauben"},
                               {"IEC 104 via {n}", "Allow IEC 60870-5-104 connections via {n}"}};
inline constexpr Words kDNP3{{"DNP3 über {n}", "DNP3-Verbindungen über {n} erlauben"},
                             {"DNP3 via {n}", "Allow DNP3 connections via {n}"}};
inline constexpr Words kSourceNetwork{
    {"Netzbeschränkung {n}", "Zugriff über {n} auf das angegebene Netz einschränken"},
    {"{n} source network", "Restrict access via {n} to the given network"}};
inline constexpr Words kFirewallNetwork{
    {"Firewall-Netz {n}", "Adresse des Netzes, aus dem Zugriffe über {n} erlaubt sind"},
    {"{n} firewall network", "Address of the network from which access via {n} is allowed"}};
inline constexpr Words kFirewallMask{
    {"Firewall-Maske {n}", "Netzmaske des Netzes, aus dem Zugriffe über {n} erlaubt sind"},
    {"{n} firewall mask", "Netmask of the network from which access via {n} is allowed"}};

inline constexpr Row kFirewallRows[] = {
    flag(8010, "Firewall_dis", {.def = kOn, .is = kSecurity},
         {{"Firewall aus", "Standard-Firewall des Geräts abschalten"},
          {"Firewall off", "Switch the device's standard firewall off"}}),
    flag(8011, "FW_ETH0_com", {.def = kOn, .is = kSecurity}, kDeviceAccess("ETH0")),
    flag(8012, "FW_ETH0_ssh", {.def = kOn, .is = kSecurity}, kSSH("ETH0")),
    flag(8013, "FW_ETH0_vnc", {.def = kOn, .is = kSecurity}, kVNC("ETH0")),
    flag(8014, "FW_ETH0_mod", {.def = kOn, .is = kSecurity}, kModbus("ETH0")),
    flag(8015, "FW_ETH0_104", {.def = kOn, .is = kSecurity}, kIEC104("ETH0")),
    flag(8016, "FW_ETH0_DNP3", {.def = kOn, .is = kSecurity}, kDNP3("ETH0")),
    flag(8017, "FW_ETH0_ACT", {.is = kSecurity}, kSourceNetwork("ETH0")),
    address(16001, "FW_ETH0_NET", {.def = "0.0.0.0"}, kFirewallNetwork("ETH0")),
    address(16002, "FW_ETH0_MASK", {.def = "0.0.0.0", .form = kNetmask}, kFirewallMask("ETH0")),
    flag(8018, "FW_ETH1_com", {.def = kOn, .is = kSecurity}, kDeviceAccess("ETH1")),
    flag(8019, "FW_ETH1_ssh", {.def = kOn, .is = kSecurity}, kSSH("ETH1")),
    flag(8020, "FW_ETH1_vnc", {.def = kOn, .is = kSecurity}, kVNC("ETH1")),
    flag(8021, "FW_ETH1_mod", {.def = kOn, .is = kSecurity}, kModbus("ETH1")),
    flag(8022, "FW_ETH1_104", {.def = kOn, .is = kSecurity}, kIEC104("ETH1")),
    flag(8023, "FW_ETH1_DNP3", {.def = kOn, .is = kSecurity}, kDNP3("ETH1")),
    flag(8024, "FW_ETH1_ACT", {.is = kSecurity}, kSourceNetwork("ETH1")),
    address(16003, "FW_ETH1_NET", {.def = "0.0.0.0"}, kFirewallNetwork("ETH1")),
    address(16004, "FW_ETH1_MASK", {.def = "0.0.0.0", .form = kNetmask}, kFirewallMask("ETH1")),
    flag(8025, "FW_ETHW_com", {.is = kSecurity}, kDeviceAccess("WLAN")),
    flag(8026, "FW_ETHW_ssh", {.is = kSecurity}, kSSH("WLAN")),
    flag(8027, "FW_ETHW_vnc", {.is = kSecurity}, kVNC("WLAN")),
    flag(8028, "FW_ETHW_mod", {.is = kSecurity}, kModbus("WLAN")),
    flag(8029, "FW_ETHW_104", {.is = kSecurity}, kIEC104("WLAN")),
    flag(8030, "FW_ETHW_DNP3", {.is = kSecurity}, kDNP3("WLAN")),
    flag(8031, "FW_ETHW_ACT", {.is = kSecurity}, kSourceNetwork("WLAN")),
    address(16005, "FW_ETHW_NET", {.def = "0.0.0.0"}, kFirewallNetwork("WLAN")),
    address(16006, "FW_ETHW_MASK", {.def = "0.0.0.0", .form = kNetmask}, kFirewallMask("WLAN")),
    number(6030, "FW_BLOCK", {.def = 3600, .min = -1, .max = 86400, .unit = "s", .is = kSecurity},
           {{"Firewall-Sperrzeit", "Dauer der Sperre nach einem Angriff"},
            {"Firewall blocking time", "Duration of the blocking after an attack"}}),
    flag(8032, "ftp_pasv_pro", {.is = kSecurity},
         {{"FTP-PASV-Prüfung aus", "Prüfung passiver FTP-Verbindungen (PASV) abschalten"},
          {"FTP PASV check off", "Switch off the check of passive FTP connections (PASV)"}}),
    flag(8033, "ftp_log", {.is = kSecurity},
         {{"FTP protokollieren", "Protokoll des FTP-Servers einschalten"},
          {"FTP logging", "Switch on the log of the FTP server"}}),
    number(6031, "ftp_min_passive", {.def = 1024, .min = 1024, .max = 65535, .is = kSecurity},
           {{"Kleinster FTP-Passivport", "Beginn des Portbereichs für passive FTP-Verbindungen"},
            {"Lowest passive FTP port", "Start of the port range for passive FTP connections"}}),
    number(6032, "ftp_max_passive", {.def = 1124, .min = 1024, .max = 65535, .is = kSecurity},
           {{"Größter FTP-Passivport", "Ende des Portbereichs für passive FTP-Verbindungen"},
            {"Highest passive FTP port", "End of the port range for passive FTP connections"}}),
    flag(8034, "Disable_boot_timeout", {.is = kSecurity},
         {{"Boot-Timeout aus", "Zeitüberwachung beim Start des Geräts abschalten"},
          {"Boot timeout off", "Switch off the time-out at the start of the device"}}),
};

inline constexpr Note kFirewallNotes[] = {
    unknown("FW_BLOCK", "Was -1 bedeutet, ist nicht dokumentiert. Ganze Zahl; Nachkommastellen fallen weg.",
            "What -1 means is not documented. Whole number; a fraction is cut off."),
    warning("Firewall_dis", "Ab Werk 1: Die Standard-Firewall ist abgeschaltet.",
            "Factory value 1: the standard firewall is off."),
    advice("ftp_{min,max}_passive", "Dass der kleinste unter dem größten Port liegt, wird nicht geprüft.",
           "Nothing checks that the lowest port is below the highest."),
};

} // namespace talux::parameters

#endif
