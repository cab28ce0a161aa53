// The factory settings without a store: what a scenario is drawn and checked with.
#ifndef TALUX_DESK_FACTORY_H
#define TALUX_DESK_FACTORY_H

#include <talux/follower.hpp>

namespace desk {

stVarSpace factorySpace();

inline talux::Settings factorySettings() {
    return talux::Settings(factorySpace());
}

} // namespace desk

#endif
