// The entry point of the Lua module lib_talux_lua, for hosts that open it without `require`.
#ifndef LIB_TALUX_LUA_H
#define LIB_TALUX_LUA_H

#include "ParamSystem/TALUX_Types.h"

struct lua_State;

/*
 * Loads the dictionary tables and sets the globals talux_usleep, talux_command, talux_getlasterror,
 * talux_longarray and talux_doublearray. Returns 0: there is no module table. All Lua states of a process
 * share one interpreter and one last error, so only one of them may call in at a time.
 */
extern "C" TALUX_API int luaopen_lib_talux_lua(lua_State* L);

#endif
