// Ids of the settings that reach the operating system. Looked up in one source, the only one of this folder
// that is recompiled for a new parameter.
#ifndef TALUX_NETWORK_SETTINGIDS_H
#define TALUX_NETWORK_SETTINGIDS_H

namespace talux::network {

// Constants and names. Of the aliases of the telecontrol link only the first: the ids of the next are
// kIdsPerAlias higher.
#define TALUX_NETWORK_SETTINGS(SETTING)                                                                      \
    SETTING(kChannel, "channel")                                                                             \
    SETTING(kEssid, "essid")                                                                                 \
    SETTING(kKey, "key")                                                                                     \
    SETTING(kRate, "rate")                                                                                   \
    SETTING(kWlan0Type, "VarSetWLAN0TypeDev")                                                                \
    SETTING(kEth1Active, "eth1_active")                                                                      \
    SETTING(kWlan0Active, "wlan0_active")                                                                    \
    SETTING(kEth0Address, "ETH0_IP")                                                                         \
    SETTING(kEth0Netmask, "ETH0_MASK")                                                                       \
    SETTING(kEth0Gateway, "ETH0_GATEWAY")                                                                    \
    SETTING(kEth1Address, "ETH1_IP")                                                                         \
    SETTING(kEth1Netmask, "ETH1_MASK")                                                                       \
    SETTING(kEth1Gateway, "ETH1_GATEWAY")                                                                    \
    SETTING(kWlan0Address, "WLAN0_IP")                                                                       \
    SETTING(kWlan0Netmask, "WLAN0_MASK")                                                                     \
    SETTING(kWlan0Gateway, "WLAN0_GATEWAY")                                                                  \
    SETTING(kDns, "DNS")                                                                                     \
    SETTING(kTimeZone, "TIMEZONE")                                                                           \
    SETTING(kNtp1, "NTP1")                                                                                   \
    SETTING(kNtp2, "NTP2")                                                                                   \
    SETTING(kNtpRtc, "NTP_RTC")                                                                              \
    SETTING(kDcf77Active, "DCF77_activ")                                                                     \
    SETTING(kT104Ethernet, "T104_ethernet")                                                                  \
    SETTING(kT104Address1, "T104_ETH_IP_1")                                                                  \
    SETTING(kT104Netmask1, "T104_ETH_MA_1")                                                                  \
    SETTING(kT104Gateway1, "T104_ETH_GW_1")

// NOLINTNEXTLINE(bugprone-macro-parentheses): a declared name
#define TALUX_DECLARE(constant, name) extern const int constant;
TALUX_NETWORK_SETTINGS(TALUX_DECLARE)
#undef TALUX_DECLARE

inline constexpr int kAliasCount = 4, kIdsPerAlias = 4;

// Whether applying the network settings passes this one to the operating system.
bool reachesSystem(int id);

} // namespace talux::network

#endif
