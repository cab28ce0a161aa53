// The module in hosts that embed Lua themselves. Built twice: with Lua's shared and with its static library.
#include <gtest/gtest.h>
#include <lua.hpp>

#include <memory>
#include <string>

namespace {

using State = std::unique_ptr<lua_State, decltype(&lua_close)>;

State openState() {
    State state(luaL_newstate(), lua_close);
    luaL_openlibs(state.get());
    return state;
}

// The text that the chunk returns, or Lua's error message.
std::string run(const State& state, const std::string& chunk) {
    luaL_dostring(state.get(), chunk.c_str());
    const char* text = lua_tostring(state.get(), -1);
    std::string result = text != nullptr ? text : "(no text)";
    lua_settop(state.get(), 0);
    return result;
}

std::string ask(const State& state, const std::string& line) {
    return run(state, "return talux_command('" + line + "')");
}

const char* const kRequire = "require 'lib_talux_lua' return 'loaded'";

TEST(Host, StatesShareTheStoreAndOutliveEachOther) {
    State first = openState();
    const State second = openState();
    ASSERT_EQ(run(first, kRequire), "loaded");
    EXPECT_EQ(run(second, "return type(talux_command)"), "nil");
    ASSERT_EQ(run(second, kRequire), "loaded");
    EXPECT_EQ(ask(first, "TLX_channel=7"), "");
    EXPECT_EQ(ask(second, "TLX_channel"), "7");
    EXPECT_EQ(run(first,
                  "local a = talux_longarray.new(3) talux_longarray.setitem(a, 1, 7) "
                  "talux_longarray.get(nil, 'TLX_U1_prim', 1, 2) return talux_longarray.getitem(a, 1)"),
              "7");
    first.reset();
    EXPECT_EQ(ask(second, "TLX_channel=8"), "");
    const State third = openState();
    ASSERT_EQ(run(third, kRequire), "loaded");
    EXPECT_EQ(ask(third, "TLX_channel"), "8");
    EXPECT_EQ(run(third, "return talux_getlasterror()"), "<< NO ARRAY >>") << "it is the process's";
    EXPECT_EQ(ask(second, "update"), "parameter successfully update\n");
}

} // namespace
