// A program that embeds Lua and opens the module itself; it stands in for the sleep of the C library.
#include "src/lib_talux_lua.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <lua.hpp>
#include <unistd.h>
#include <vector>

namespace {
std::vector<unsigned> sleeps;
}

int usleep(useconds_t microseconds) {
    sleeps.push_back(microseconds);
    return -1; // its errors are ignored
}

struct LuaHost : testing::Test {
    lua_State* L = luaL_newstate();

    void SetUp() override {
        luaL_openlibs(L);
        EXPECT_EQ(luaopen_lib_talux_lua(L), 0);
        EXPECT_EQ(lua_gettop(L), 0);
    }
    void TearDown() override { lua_close(L); }
    void run(const char* code) { ASSERT_EQ(luaL_dostring(L, code), 0) << lua_tostring(L, -1); }
};

TEST_F(LuaHost, SleepsWholeMicrosecondsNeverNegative) {
    const std::pair<const char*, unsigned> cases[] = {
        {"1500", 1500}, {"2.9", 2}, {"'20'", 20}, {"1e300", INT_MAX}, {"1/0", INT_MAX}, {"2^31 - 1", INT_MAX},
        {"0", 0},       {"0.9", 0}, {"-1", 0},    {"-1e300", 0},      {"0/0", 0},       {"'x'", 0},
        {"nil", 0},     {"{}", 0},  {"", 0}};
    for (const auto& [argument, microseconds] : cases) {
        sleeps.assign(1, 0);
        run(("assert(select('#', talux_usleep(" + std::string(argument) + ")) == 0)").c_str());
        EXPECT_EQ(sleeps.back(), microseconds) << argument;
    }
}

// Userdata of other modules that look like arrays, and light userdata that point to one.
TEST_F(LuaHost, ForgedArraysAreRefused) {
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
        lua_pushfstring(L, "talux_%sarray", kind);
        lua_getglobal(L, lua_tostring(L, -1));
        lua_setglobal(L, "array");
        run("assert(not pcall(array.size, forged))"
            "assert(not pcall(array.getitem, forged, 0))"
            "assert(not pcall(array.setitem, forged, 0, 7))"
            "assert(array.get(forged, 'TLX_vBE', 1, 1) == nil and array.get(forged, 'TLX_vMWR', 1, 1) == nil)"
            "assert(talux_getlasterror() == '<< WRONG DATA TYPE >>')");
    }
}
