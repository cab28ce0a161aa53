// Interfaces ETH0, ETH1 (USB) and WLAN0, name server.
#ifndef TALUX_TEXTS_NETWORK_H
#define TALUX_TEXTS_NETWORK_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kNetwork[] = {
    value("ETH0_IP", {"IP-Adresse ETH0", "IP address ETH0"},
          {"IPv4-Adresse der eingebauten Ethernet-Schnittstelle",
           "IPv4 address of the built-in Ethernet interface"}),
    value("ETH0_MASK", {"Netzmaske ETH0", "Netmask ETH0"},
          {"Netzmaske der eingebauten Ethernet-Schnittstelle", "Netmask of the built-in Ethernet interface"}),
    value("ETH0_GATEWAY", {"Gateway ETH0", "Gateway ETH0"},
          {"Standard-Gateway über ETH0; 0.0.0.0 = kein Gateway",
           "Default gateway via ETH0; 0.0.0.0 = no gateway"}),
    command(
        "VarResetIP", {"System-IP zurücksetzen", "Reset system IP"},
        {"IP-Einstellungen aller Schnittstellen auf Werkseinstellung setzen",
         "Set the IP settings of all interfaces to the factory defaults"},
        {"Bitte warten...", "Please wait..."},
        {"Fehler beim\nZurücksetzen|Erfolgreich\nzurückgesetzt", "Error during\nreset|Successfully\nreset"},
        0),
    command("VarResetIPMask", {"Netzmaske zurücksetzen", "Reset IP mask"},
            {"Netzmaske auf Werkseinstellung setzen", "Set the netmask to the factory default"},
            {"Bitte warten...", "Please wait..."}),
    command("VarResetIPGateway", {"Gateway zurücksetzen", "Reset gateway"},
            {"Gateway auf Werkseinstellung setzen", "Set the gateway to the factory default"},
            {"Bitte warten...", "Please wait..."}),
    value("eth1_active", {"ETH1 aktiv", "ETH1 active"},
          {"Zweite Ethernet-Schnittstelle über USB-Adapter verwenden",
           "Use the second Ethernet interface, an adapter on USB"}),
    value("ETH1_DRV", {"Treiber ETH1", "Driver ETH1"},
          {"Auswahl des Treibers für den USB-Ethernet-Adapter",
           "Selection of the driver for the Ethernet adapter on USB"}),
    value(
        "ETH1_IP", {"IP-Adresse ETH1", "IP address ETH1"},
        {"IPv4-Adresse der Ethernet-Schnittstelle an USB", "IPv4 address of the Ethernet interface on USB"}),
    value("ETH1_MASK", {"Netzmaske ETH1", "Netmask ETH1"},
          {"Netzmaske der Ethernet-Schnittstelle an USB", "Netmask of the Ethernet interface on USB"}),
    value("ETH1_GATEWAY", {"Gateway ETH1", "Gateway ETH1"},
          {"Standard-Gateway über ETH1; 0.0.0.0 = kein Gateway",
           "Default gateway via ETH1; 0.0.0.0 = no gateway"}),
    value("wlan0_active", {"WLAN aktiv", "WLAN active"},
          {"WLAN-Adapter an USB verwenden", "Use the WLAN adapter on USB"}),
    value("WLAN0_DRV", {"Treiber WLAN", "Driver WLAN"},
          {"Auswahl des Treibers für den WLAN-Adapter", "Selection of the driver for the WLAN adapter"}),
    command("VarAdhocWLAN0", {"Ad-hoc-WLAN starten", "Start ad-hoc WLAN"},
            {"Funknetz ohne Zugangspunkt mit ESSID, Schlüssel und Kanal starten",
             "Start a wireless network without an access point, using ESSID, key and channel"},
            {"Bitte warten...", "Please wait..."}),
    choice("VarSetWLAN0TypeDev", {"WLAN-Betriebsart", "WLAN mode"},
           {"Direkte Verbindung zweier Geräte oder Anmeldung an einem Zugangspunkt",
            "Connect two devices directly or join an access point"},
           {"Ad-hoc|Infrastruktur", "Ad-hoc|Infrastructure"}),
    value("WLAN0_IP", {"IP-Adresse WLAN", "IP address WLAN"},
          {"IPv4-Adresse der WLAN-Schnittstelle", "IPv4 address of the WLAN interface"}),
    value("WLAN0_MASK", {"Netzmaske WLAN", "Netmask WLAN"},
          {"Netzmaske der WLAN-Schnittstelle", "Netmask of the WLAN interface"}),
    value("WLAN0_GATEWAY", {"Gateway WLAN", "Gateway WLAN"},
          {"Standard-Gateway über WLAN; 0.0.0.0 = kein Gateway",
           "Default gateway via WLAN; 0.0.0.0 = no gateway"}),
    value("essid", {"ESSID", "ESSID"},
          {"Name des Funknetzes, für Infrastruktur und Ad-hoc",
           "Name of the wireless network, for infrastructure and ad-hoc"}),
    choice("rate", {"Datenrate WLAN", "Data rate WLAN"},
           {"Übertragungsrate im Ad-hoc-Betrieb", "Transmission rate in ad-hoc mode"},
           {"automatisch|54 Mbit/s|11 Mbit/s", "automatic|54 Mbit/s|11 Mbit/s"}),
    value("key", {"WEP-Schlüssel", "WEP key"},
          {"Schlüssel des Ad-hoc-Netzes; off = unverschlüsselt",
           "Key of the ad-hoc network; off = not encrypted"}),
    value("channel", {"Funkkanal", "Radio channel"},
          {"Kanal des Ad-hoc-Netzes, 1 bis 11", "Channel of the ad-hoc network, 1 to 11"}),
    value("DNS", {"Nameserver", "Name server"},
          {"Adresse des DNS-Servers; 0.0.0.0 = keiner", "Address of the DNS server; 0.0.0.0 = none"}),
};

} // namespace talux::texts

#endif
