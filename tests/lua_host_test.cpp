// A program that embeds Lua and opens the module itself; it stands in for the sleep of the C library.
#include "src/lib_talux_lua.h"

#include <gtest/gtest.h>

#include <climits>
#include <lua.hpp>
#include <unistd.h>
#include <vector>

namespace {
std::vector<unsigned> sleeps;
}

int usleep(useconds_t microseconds) {
    sleeps.push_back(microseconds);
    return -1; // its errors are nobody's business
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
    struct Row {
        const char* argument;
        unsigned microseconds;
    };
    for (const auto& [argument, microseconds] : {Row{"1500", 1500},
                                                 {"2.9", 2},
                                                 {"'20'", 20},
                                                 {"1e300", INT_MAX},
                                                 {"1/0", INT_MAX},
                                                 {"2^31 - 1", INT_MAX},
                                                 {"0", 0},
                                                 {"0.9", 0},
                                                 {"-1", 0},
                                                 {"-1e300", 0},
                                                 {"0/0", 0},
                                                 {"'x'", 0},
                                                 {"nil", 0},
                                                 {"{}", 0},
                                                 {"", 0}}) {
        sleeps.assign(1, 0);
        run((std::string("talux_usleep(") + argument + ")").c_str());
        EXPECT_EQ(sleeps.back(), microseconds) << argument;
    }
}

TEST_F(LuaHost, ClosedAndOpenedAgainKeepsTheStore) {
    run("talux_command('TLX_vBE 5=77')");
    run("talux_longarray.get(nil, 'TLX_U1_prim', 1, 2)");
    TearDown();
    L = luaL_newstate();
    SetUp();
    run("assert(talux_command('TLX_vBE 5') == '77\\n')");
    run("assert(talux_getlasterror() == '<< NO ARRAY >>')"); // the last error is the process's
}
