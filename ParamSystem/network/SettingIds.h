// Ids of the settings that reach the operating system. Looked up in one source, the only one of this room
// that a new parameter compiles again.
#ifndef TALUX_NETWORK_SETTINGIDS_H
#define TALUX_NETWORK_SETTINGIDS_H

namespace talux::network {

extern const int kChannel, kEssid, kKey, kRate, kWlan0Type;
extern const int kEth1Active, kWlan0Active;
extern const int kEth0Address, kEth0Netmask, kEth0Gateway;
extern const int kEth1Address, kEth1Netmask, kEth1Gateway;
extern const int kWlan0Address, kWlan0Netmask, kWlan0Gateway;
extern const int kDns, kTimeZone, kNtp1, kNtp2, kNtpRtc, kDcf77Active;

// Of the telecontrol link: its interface, and of the first of its aliases. The ids of the next are
// kIdsPerAlias higher.
extern const int kT104Ethernet;
extern const int kT104Address1, kT104Netmask1, kT104Gateway1;
inline constexpr int kAliasCount = 4, kIdsPerAlias = 4;

} // namespace talux::network

#endif
