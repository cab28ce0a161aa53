// Arrays of longs and doubles as Lua userdata, filled from indexed parameters in one call.
#ifndef TALUX_SRC_NUMBERARRAY_H
#define TALUX_SRC_NUMBERARRAY_H

#include "src/LuaApi.h"

namespace talux {

// The functions of the tables talux_longarray and talux_doublearray, each list ended by an empty entry.
extern const luaL_Reg* const longArrayFunctions;
extern const luaL_Reg* const doubleArrayFunctions;

// Why the last failed bulk read of the process failed; empty before the first.
const char* lastArrayError();

} // namespace talux

#endif
