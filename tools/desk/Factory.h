// The factory settings without a store: what a scenario is drawn and checked with.
#ifndef TALUX_DESK_FACTORY_H
#define TALUX_DESK_FACTORY_H

#include <talux/follower.hpp>

namespace desk {

// For programs that do not attach the store: its temporary space is in their own memory then.
inline const stVarSpace& factorySpace() {
    static stVarSpace space{};
    LoadDefParamProperties();
    pVarTemp = &space;
    VarSetDefault();
    return space;
}

} // namespace desk

#endif
