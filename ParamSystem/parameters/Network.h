// Interfaces ETH0, ETH1 (over USB) and WLAN0, name server.
#ifndef TALUX_PARAMETERS_NETWORK_H
#define TALUX_PARAMETERS_NETWORK_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

inline constexpr Row kNetworkRows[] = {
    interfaceAddress(
        16029, "ETH0_IP", {.def = "192.168.55.127", .is = kIndividual},
        {{"IP-Adresse ETH0", "IPv4-Adresse der eingebauten Ethernet-Schnittstelle; Schreiben gilt sofort"},
         {"ETH0 IP address", "IPv4 address of the built-in Ethernet interface; a write acts at once"}}),
    interfaceMask(16032, "ETH0_MASK", {.def = "255.255.0.0", .is = kIndividual},
                  {{"Netzmaske ETH0", "Netzmaske der eingebauten Ethernet-Schnittstelle"},
                   {"ETH0 netmask", "Netmask of the built-in Ethernet interface"}}),
    interfaceGateway(16035, "ETH0_GATEWAY", {.def = "0.0.0.0", .is = kIndividual},
                     {{"Gateway ETH0", "Standard-Gateway über ETH0; 0.0.0.0 setzt keine Route"},
                      {"ETH0 gateway", "Default gateway via ETH0; 0.0.0.0 sets no route"}}),
    command(19002, "VarResetIP", {.userlevel = 2, .firstResult = 0},
            {{"System-IP zurücksetzen", "IP-Einstellungen auf Werkseinstellung setzen", "Bitte warten...",
              "Fehler beim\nZurücksetzen|Erfolgreich\nzurückgesetzt"},
             {"Reset system IP", "Set the IP settings to the factory defaults", "Please wait...",
              "Error during\nreset|Successfully\nreset"}}),
    command(19003, "VarResetIPMask", {},
            {{"Netzmaske zurücksetzen", "Netzmaske auf Werkseinstellung setzen", "Bitte warten..."},
             {"Reset IP mask", "Set the netmask to the factory default", "Please wait..."}}),
    command(19004, "VarResetIPGateway", {},
            {{"Gateway zurücksetzen", "Gateway auf Werkseinstellung setzen", "Bitte warten..."},
             {"Reset gateway", "Set the gateway to the factory default", "Please wait..."}}),
    flag(8008, "eth1_active", {},
         {{"ETH1 aktiv", "Zweite Ethernet-Schnittstelle über USB-Adapter verwenden"},
          {"ETH1 active", "Use the second Ethernet interface, an adapter on USB"}}),
    text(9020, "ETH1_DRV", {.length = 80, .def = "kernel;"},
         {{"Treiber ETH1", "Auswahl des Treibers für den USB-Ethernet-Adapter"},
          {"ETH1 driver", "Selection of the driver for the Ethernet adapter on USB"}}),
    interfaceAddress(
        16030, "ETH1_IP", {.def = "10.16.55.128", .is = kIndividual},
        {{"IP-Adresse ETH1", "IPv4-Adresse der Ethernet-Schnittstelle an USB; Schreiben gilt sofort"},
         {"ETH1 IP address", "IPv4 address of the Ethernet interface on USB; a write acts at once"}}),
    interfaceMask(16033, "ETH1_MASK", {.def = "255.255.0.0", .is = kIndividual},
                  {{"Netzmaske ETH1", "Netzmaske der Ethernet-Schnittstelle an USB"},
                   {"ETH1 netmask", "Netmask of the Ethernet interface on USB"}}),
    interfaceGateway(16036, "ETH1_GATEWAY", {.def = "0.0.0.0", .is = kIndividual},
                     {{"Gateway ETH1", "Standard-Gateway über ETH1; 0.0.0.0 setzt keine Route"},
                      {"ETH1 gateway", "Default gateway via ETH1; 0.0.0.0 sets no route"}}),
    flag(8009, "wlan0_active", {},
         {{"WLAN aktiv", "WLAN-Schnittstelle verwenden"}, {"WLAN active", "Use the WLAN interface"}}),
    text(9021, "WLAN0_DRV", {.def = "kernel;"},
         {{"Treiber WLAN", "Auswahl des Treibers für den WLAN-Adapter"},
          {"WLAN driver", "Selection of the driver for the WLAN adapter"}}),
    command(19005, "VarAdhocWLAN0", {},
            {{"Ad-hoc-WLAN starten", "Funknetz ohne Zugangspunkt mit ESSID, Schlüssel und Kanal starten",
              "Bitte warten..."},
             {"Start ad-hoc WLAN",
              "Start a wireless network without an access point, using ESSID, key and channel",
              "Please wait..."}}),
    choice(10011, "VarSetWLAN0TypeDev", {.names = "Ad_hoc|Infrastructure", .min = 1},
           {{"WLAN-Betriebsart", "Ad-hoc verbindet Geräte unmittelbar; Infrastruktur wird nicht eingerichtet",
             "Ad-hoc|Infrastruktur"},
            {"WLAN mode", "Ad-hoc connects devices directly; infrastructure is not set up",
             "Ad-hoc|Infrastructure"}}),
    interfaceAddress(16031, "WLAN0_IP", {.def = "192.168.55.129", .is = kIndividual},
                     {{"IP-Adresse WLAN", "IPv4-Adresse der WLAN-Schnittstelle; Schreiben gilt sofort"},
                      {"WLAN IP address", "IPv4 address of the WLAN interface; a write acts at once"}}),
    interfaceMask(16034, "WLAN0_MASK", {.def = "255.255.0.0", .is = kIndividual},
                  {{"Netzmaske WLAN", "Netzmaske der Schnittstelle WLAN0"},
                   {"WLAN netmask", "Netmask of the interface WLAN0"}}),
    interfaceGateway(16037, "WLAN0_GATEWAY", {.def = "0.0.0.0", .is = kIndividual},
                     {{"Gateway WLAN", "Standard-Gateway über WLAN; 0.0.0.0 setzt keine Route"},
                      {"WLAN gateway", "Default gateway via WLAN; 0.0.0.0 sets no route"}}),
    text(9022, "essid", {.length = 40, .def = "talux"},
         {{"ESSID", "Name des Funknetzes, für Infrastruktur und Ad-hoc"},
          {"ESSID", "Name of the wireless network, for infrastructure and ad-hoc"}}),
    choice(10012, "rate", {.names = "Automatic|54_Mbit_s|11_Mbit_s", .min = 1},
           {{"Datenrate WLAN", "Übertragungsrate im Ad-hoc-Betrieb", "automatisch|54 Mbit/s|11 Mbit/s"},
            {"WLAN data rate", "Transmission rate in ad-hoc mode", "automatic|54 Mbit/s|11 Mbit/s"}}),
    text(9023, "key", {.length = 40, .def = "off", .is = kSecret},
         {{"WEP-Schlüssel", "Schlüssel des Ad-hoc-Netzes; off = unverschlüsselt"},
          {"WEP key", "Key of the ad-hoc network; off = not encrypted"}}),
    number(6029, "channel", {.def = 11, .min = 1, .max = 11},
           {{"Funkkanal", "Kanal des Ad-hoc-Netzes, 1 bis 11"},
            {"Radio channel", "Channel of the ad-hoc network, 1 to 11"}}),
    address(16000, "DNS", {.def = "0.0.0.0"},
            {{"Nameserver", "Adresse des DNS-Servers; 0.0.0.0 lässt den bisherigen"},
             {"Name server", "Address of the DNS server; 0.0.0.0 keeps the present one"}}),
};

inline constexpr Note kNetworkNotes[] = {
    warning("ETH0_IP ETH1_IP WLAN0_IP",
            "Wird nicht geprüft. Ein Schreiben wendet alle Netzwerkeinstellungen sofort an, macht alles "
            "Ausstehende gültig und speichert die Adressen: Eine falsche Adresse trennt das Gerät vom Netz, "
            "auch nach einem Neustart. Maske und Gateway zuerst schreiben.",
            "Not checked. A write applies all network settings at once, makes every pending setting live and "
            "saves the addresses: a wrong address cuts the device off the network, even after a restart. "
            "Write mask and gateway first."),
    warning("{ETH0,ETH1,WLAN0}_MASK",
            "Wird nicht geprüft; gilt erst, wenn die Netzwerkeinstellungen angewendet werden.",
            "Not checked; takes effect only when the network settings are applied."),
    warning("{ETH0,ETH1,WLAN0}_GATEWAY",
            "Wird nicht geprüft. 0.0.0.0 setzt keine Route und behält eine bestehende Standardroute.",
            "Not checked. 0.0.0.0 sets no route and keeps an existing default route."),
    warning("VarSetWLAN0TypeDev",
            "Infrastruktur wird nicht unterstützt: Mit 2 wird am Funkadapter nichts eingestellt.",
            "Infrastructure is not supported: with 2 nothing is set at the radio adapter."),
    advice("DNS", "0.0.0.0 oder leer ändert /etc/resolv.conf nicht.",
           "0.0.0.0 or an empty text does not change /etc/resolv.conf."),
};

} // namespace talux::parameters

#endif
