// The parameters that reach the operating system, and how they are read from the temporary space.
#ifndef TALUX_SETTINGS_SETTINGS_H
#define TALUX_SETTINGS_SETTINGS_H

#include <string_view>

#include "ParamSystem/TALUX_Var.h"

namespace talux::settings {

// Parameter ids.
enum Setting : int {
    kChannel = 6029,
    kEth1Active = 8008,
    kWlan0Active = 8009,
    kNtpRtc = 8035,
    kDcf77Active = 8038,
    kEssid = 9022,
    kKey = 9023,
    kTimeZone = 9024,
    kWlan0Type = 10011,
    kRate = 10012,
    kT104Ethernet = 10040,
    kDns = 16000,
    kNtp1 = 16007,
    kNtp2 = 16008,
    kT104Address1 = 16010, // the next three aliases follow at steps of 4
    kT104Netmask1 = 16011,
    kT104Gateway1 = 16012,
    kEth0Address = 16029,
    kEth1Address = 16030,
    kWlan0Address = 16031,
    kEth0Netmask = 16032,
    kEth1Netmask = 16033,
    kWlan0Netmask = 16034,
    kEth0Gateway = 16035,
    kEth1Gateway = 16036,
    kWlan0Gateway = 16037,
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
