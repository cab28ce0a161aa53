// Which settings reach the operating system when the network settings are applied.
#ifndef TALUX_TOOLS_TALUX_NETWORK_H
#define TALUX_TOOLS_TALUX_NETWORK_H

#include <algorithm>
#include <iterator>

#include "ParamSystem/network/SettingIds.h"
#include "tools/reference/Reference.h"

namespace talux::tool {

inline bool reachesNetwork(const reference::Parameter& parameter) {
    using namespace network;
    const int applied[] = {kChannel,      kEth1Active,   kWlan0Active, kNtpRtc,      kDcf77Active,
                           kEssid,        kKey,          kTimeZone,    kWlan0Type,   kRate,
                           kT104Ethernet, kDns,          kNtp1,        kNtp2,        kEth0Address,
                           kEth1Address,  kWlan0Address, kEth0Netmask, kEth1Netmask, kWlan0Netmask,
                           kEth0Gateway,  kEth1Gateway,  kWlan0Gateway};
    const int id = parameter.row().id;
    for (const int first : {kT104Address1, kT104Netmask1, kT104Gateway1})
        for (int alias = 0; alias < kAliasCount; ++alias)
            if (id == first + alias * kIdsPerAlias) return true;
    return std::find(std::begin(applied), std::end(applied), id) != std::end(applied);
}

} // namespace talux::tool

#endif
