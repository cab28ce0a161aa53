// The Lua C interface. The host interpreter provides it; the module links no Lua library of its own.
#ifndef TALUX_SRC_LUAAPI_H
#define TALUX_SRC_LUAAPI_H

#include <lua.hpp>

// Weak, so that programs without Lua can link and load the library: they never reach these functions.
#pragma weak lua_pushcclosure
#pragma weak lua_setglobal
#pragma weak lua_createtable
#pragma weak luaL_setfuncs
#pragma weak lua_tolstring
#pragma weak lua_tonumberx
#pragma weak lua_pushstring
#pragma weak lua_pushnumber
#pragma weak lua_touserdata
#pragma weak lua_rawlen
#pragma weak lua_newuserdata
#pragma weak luaL_checkinteger
#pragma weak luaL_checknumber
#pragma weak luaL_argerror

#endif
