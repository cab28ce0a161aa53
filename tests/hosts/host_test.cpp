// The module in hosts that embed Lua themselves. Built twice: with Lua's shared and with its static library.
// They stand in for the sleep of the C library.
#include <climits>
#include <cstring>
#include <gtest/gtest.h>
#include <lua.hpp>

#include <memory>
#include <string>
#include <unistd.h>

namespace {
unsigned slept = 0;
}

extern "C" int usleep(useconds_t microseconds) {
    slept = microseconds;
    return -1; // its errors are ignored
}

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

TEST(Host, SleepsWholeMicrosecondsNeverNegative) {
    const State state = openState();
    // Without `require`, too: there is no module table.
    ASSERT_EQ(run(state, "local path = package.searchpath('lib_talux_lua', package.cpath) "
                         "return select('#', package.loadlib(path, 'luaopen_lib_talux_lua')())"),
              "0");
    const std::pair<const char*, unsigned> cases[] = {
        {"1500", 1500}, {"2.9", 2}, {"'20'", 20}, {"1e300", INT_MAX}, {"1/0", INT_MAX}, {"2^31 - 1", INT_MAX},
        {"0", 0},       {"0.9", 0}, {"-1", 0},    {"-1e300", 0},      {"0/0", 0},       {"'x'", 0},
        {"nil", 0},     {"{}", 0},  {"", 0}};
    for (const auto& [argument, microseconds] : cases) {
        slept = 0;
        EXPECT_EQ(run(state, "return select('#', talux_usleep(" + std::string(argument) + "))"), "0");
        EXPECT_EQ(slept, microseconds) << argument;
    }
}

// Userdata of other modules that look like arrays, and light userdata that point to one.
TEST(Host, ForgedArraysAreRefused) {
    const State state = openState();
    lua_State* const L = state.get();
    ASSERT_EQ(run(state, kRequire), "loaded");
    static int header[] = {1000000, 2004, 1, 2}, negative[] = {-2, 2004}, wrapping[] = {1 << 30, 2004},
               doubles[] = {1, 2002, 1};
    const struct {
        int* words;
        std::size_t bytes;
        const char* kind;
    } forgeries[] = {{header, 0, "long"},   {header, 4, "long"},    {header, 8, "long"},
                     {header, 16, "long"},  {negative, 8, "long"},  {negative, 0, "long"},
                     {wrapping, 8, "long"}, {doubles, 12, "double"}};
    for (const auto& [words, bytes, kind] : forgeries) {
        if (bytes == 0)
            lua_pushlightuserdata(L, words);
        else
            std::memcpy(lua_newuserdata(L, bytes), words, bytes);
        lua_setglobal(L, "forged");
        const std::string array = std::string("local array = talux_") + kind + "array ";
        EXPECT_EQ(run(state, array + "assert(not pcall(array.size, forged))"
                                     "assert(not pcall(array.getitem, forged, 0))"
                                     "assert(not pcall(array.setitem, forged, 0, 7))"
                                     "assert(array.get(forged, 'TLX_vBE', 1, 1) == nil and array.get(forged, "
                                     "'TLX_vMWR', 1, 1) == nil)"
                                     "return talux_getlasterror()"),
                  "<< WRONG DATA TYPE >>");
    }
}

} // namespace
