// Interfaces ETH0, ETH1 (over USB) and WLAN0, name server.
#ifndef TALUX_CATALOGUE_NETWORK_H
#define TALUX_CATALOGUE_NETWORK_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

inline constexpr ParameterRow kNetwork[] = {
    interfaceAddress(16029, "ETH0_IP", "192.168.55.127"),
    interfaceMask(16032, "ETH0_MASK", "255.255.0.0"),
    interfaceGateway(16035, "ETH0_GATEWAY", "0.0.0.0"),
    command(19002, "VarResetIP", 2),
    command(19003, "VarResetIPMask"),
    command(19004, "VarResetIPGateway"),
    flag(8008, "eth1_active"),
    text(9020, "ETH1_DRV", 80, "kernel;"),
    interfaceAddress(16030, "ETH1_IP", "10.16.55.128"),
    interfaceMask(16033, "ETH1_MASK", "255.255.0.0"),
    interfaceGateway(16036, "ETH1_GATEWAY", "0.0.0.0"),
    flag(8009, "wlan0_active"),
    text(9021, "WLAN0_DRV", kNoLength, "kernel;"),
    command(19005, "VarAdhocWLAN0"),
    choice(10011, "VarSetWLAN0TypeDev", {.choices = 2, .min = 1}),
    interfaceAddress(16031, "WLAN0_IP", "192.168.55.129"),
    interfaceMask(16034, "WLAN0_MASK", "255.255.0.0"),
    interfaceGateway(16037, "WLAN0_GATEWAY", "0.0.0.0"),
    text(9022, "essid", 40, "talux"),
    choice(10012, "rate", {.choices = 3, .min = 1}),
    text(9023, "key", 40, "off"),
    number(6029, "channel", {.def = 11, .min = 1, .max = 11}),
    address(16000, "DNS", "0.0.0.0"),
};

} // namespace talux::catalogue

#endif
