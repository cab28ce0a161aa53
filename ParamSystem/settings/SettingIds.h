// The settings that reach the operating system. Apart from how they are read, since every new parameter
// compiles this again.
#ifndef TALUX_SETTINGS_SETTINGIDS_H
#define TALUX_SETTINGS_SETTINGIDS_H

#include "ParamSystem/dictionary/IdOf.h"

namespace talux::settings {

enum SettingId : int {
    kChannel = idOf("channel"),
    kEth1Active = idOf("eth1_active"),
    kWlan0Active = idOf("wlan0_active"),
    kNtpRtc = idOf("NTP_RTC"),
    kDcf77Active = idOf("DCF77_activ"),
    kEssid = idOf("essid"),
    kKey = idOf("key"),
    kTimeZone = idOf("TIMEZONE"),
    kWlan0Type = idOf("VarSetWLAN0TypeDev"),
    kRate = idOf("rate"),
    kT104Ethernet = idOf("T104_ethernet"),
    kDns = idOf("DNS"),
    kNtp1 = idOf("NTP1"),
    kNtp2 = idOf("NTP2"),
    kT104Address1 = idOf("T104_ETH_IP_1"), // of the first alias
    kT104Netmask1 = idOf("T104_ETH_MA_1"),
    kT104Gateway1 = idOf("T104_ETH_GW_1"),
    kEth0Address = idOf("ETH0_IP"),
    kEth1Address = idOf("ETH1_IP"),
    kWlan0Address = idOf("WLAN0_IP"),
    kEth0Netmask = idOf("ETH0_MASK"),
    kEth1Netmask = idOf("ETH1_MASK"),
    kWlan0Netmask = idOf("WLAN0_MASK"),
    kEth0Gateway = idOf("ETH0_GATEWAY"),
    kEth1Gateway = idOf("ETH1_GATEWAY"),
    kWlan0Gateway = idOf("WLAN0_GATEWAY"),
};

} // namespace talux::settings

#endif
