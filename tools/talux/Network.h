// Which settings reach the operating system when the network settings are applied.
#ifndef TALUX_TOOLS_TALUX_NETWORK_H
#define TALUX_TOOLS_TALUX_NETWORK_H

#include <algorithm>
#include <iterator>

#include "ParamSystem/settings/SettingIds.h"
#include "tools/reference/Reference.h"

namespace talux::tool {

inline bool reachesNetwork(const reference::Parameter& parameter) {
    using namespace settings;
    constexpr int kApplied[] = {kChannel,      kEth1Active,   kWlan0Active, kNtpRtc,      kDcf77Active,
                                kEssid,        kKey,          kTimeZone,    kWlan0Type,   kRate,
                                kT104Ethernet, kDns,          kNtp1,        kNtp2,        kEth0Address,
                                kEth1Address,  kWlan0Address, kEth0Netmask, kEth1Netmask, kWlan0Netmask,
                                kEth0Gateway,  kEth1Gateway,  kWlan0Gateway};
    constexpr int kAliasIds =
        4 * 4; // of four aliases: address, netmask, gateway and one more that is not applied
    const int id = parameter.row().id;
    const int alias = id - kT104Address1;
    if (alias >= 0 && alias < kAliasIds) return alias % 4 != 3;
    return std::find(std::begin(kApplied), std::end(kApplied), id) != std::end(kApplied);
}

} // namespace talux::tool

#endif
