#include "ParamSystem/network/SettingIds.h"

#include "ParamSystem/dictionary/IdOf.h"

namespace talux::network {

const int kChannel = idOf("channel");
const int kEssid = idOf("essid");
const int kKey = idOf("key");
const int kRate = idOf("rate");
const int kWlan0Type = idOf("VarSetWLAN0TypeDev");

const int kEth1Active = idOf("eth1_active");
const int kWlan0Active = idOf("wlan0_active");

const int kEth0Address = idOf("ETH0_IP");
const int kEth0Netmask = idOf("ETH0_MASK");
const int kEth0Gateway = idOf("ETH0_GATEWAY");
const int kEth1Address = idOf("ETH1_IP");
const int kEth1Netmask = idOf("ETH1_MASK");
const int kEth1Gateway = idOf("ETH1_GATEWAY");
const int kWlan0Address = idOf("WLAN0_IP");
const int kWlan0Netmask = idOf("WLAN0_MASK");
const int kWlan0Gateway = idOf("WLAN0_GATEWAY");

const int kDns = idOf("DNS");
const int kTimeZone = idOf("TIMEZONE");
const int kNtp1 = idOf("NTP1");
const int kNtp2 = idOf("NTP2");
const int kNtpRtc = idOf("NTP_RTC");
const int kDcf77Active = idOf("DCF77_activ");

const int kT104Ethernet = idOf("T104_ethernet");
const int kT104Address1 = idOf("T104_ETH_IP_1");
const int kT104Netmask1 = idOf("T104_ETH_MA_1");
const int kT104Gateway1 = idOf("T104_ETH_GW_1");

static_assert(idOf("T104_ETH_IP_4") == idOf("T104_ETH_IP_1") + (kAliasCount - 1) * kIdsPerAlias);
static_assert(idOf("T104_ETH_MA_4") == idOf("T104_ETH_MA_1") + (kAliasCount - 1) * kIdsPerAlias);
static_assert(idOf("T104_ETH_GW_4") == idOf("T104_ETH_GW_1") + (kAliasCount - 1) * kIdsPerAlias);

} // namespace talux::network
