#include "ParamSystem/network/SettingIds.h"

#include <algorithm>

#include "ParamSystem/dictionary/IdOf.h"

namespace talux::network {

#define TALUX_DEFINE(constant, name) const int constant = idOf(name);
TALUX_NETWORK_SETTINGS(TALUX_DEFINE)

static_assert(idOf("T104_ETH_IP_4") == idOf("T104_ETH_IP_1") + (kAliasCount - 1) * kIdsPerAlias);
static_assert(idOf("T104_ETH_MA_4") == idOf("T104_ETH_MA_1") + (kAliasCount - 1) * kIdsPerAlias);
static_assert(idOf("T104_ETH_GW_4") == idOf("T104_ETH_GW_1") + (kAliasCount - 1) * kIdsPerAlias);

bool reachesSystem(int id) {
#define TALUX_ID(constant, name) constant,
    static constexpr int kFirst[] = {TALUX_NETWORK_SETTINGS(TALUX_ID)};
    const int ofAlias = id - kT104Address1;
    const bool isLaterAlias = ofAlias >= 0 && ofAlias < kAliasCount * kIdsPerAlias;
    return std::ranges::find(kFirst, isLaterAlias ? kT104Address1 + ofAlias % kIdsPerAlias : id) !=
           std::end(kFirst);
}

} // namespace talux::network
