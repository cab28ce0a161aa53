// The parameters that reach the operating system, and how they are read from the temporary space.
#ifndef TALUX_SETTINGS_SETTINGS_H
#define TALUX_SETTINGS_SETTINGS_H

#include <string_view>

#include "ParamSystem/TALUX_Var.h"
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

inline constexpr std::string_view kNoAddress = "0.0.0.0";

// A dotted address; as stored it may have leading zeros or be any other text.
struct AddressText {
    char text[kIpSize] = "";
};

// Values of the temporary space.
int flagSetting(int id);
int choiceSetting(int id);
AddressText addressSetting(int id);

AddressText normalised(const AddressText& address);

// True for a stored address that stands for "none": empty or all zero in one of its two usual forms.
bool isUnset(const AddressText& address);

} // namespace talux::settings

#endif
