#include "bench/Operations.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <lua.hpp>
#include <tuple>
#include <utility>

#include "ParamSystem/TALUX_Params.h"
#include "ParamSystem/TALUX_Var.h"
#include "bench/Bare.h"
#include "src/lib_talux_lua.h"
#include "src/talux_interpreter.h"
#include "talux/talux.hpp"

namespace bench {

namespace {

constexpr char kParameterFile[] = "/parameter.ini";
constexpr talux::Measured<float> kFirst{"U1_prim"};

void evaluate(const std::string& line) {
    static char answer[TALUX_ANSWER_SIZE], terminator[] = "";
    if (talux_interpreter_ProcessLine(const_cast<char*>(line.c_str()), nullptr, answer, terminator) != 1)
        fail(line + " failed");
}

// ---- Lua ----------------------------------------------------------------------------------------------

int bareRead(lua_State* L) {
    char answer[64];
    bare::read(lua_tostring(L, 1), answer);
    lua_pushstring(L, answer);
    return 1;
}

int bareWrite(lua_State* L) {
    bare::write(lua_tostring(L, 1));
    lua_pushstring(L, "");
    return 1;
}

// bare_longs(block, name, count): the block is a userdata of `count` longs.
int bareLongs(lua_State* L) {
    const int count = static_cast<int>(lua_tonumber(L, 3));
    bare::readLongs(lua_tostring(L, 2), static_cast<int*>(lua_touserdata(L, 1)), count);
    lua_pushnumber(L, count);
    return 1;
}

int newLongs(lua_State* L) {
    lua_newuserdata(L, static_cast<std::size_t>(lua_tonumber(L, 1)) * sizeof(int));
    return 1;
}

lua_State* lua() {
    static lua_State* const L = [] {
        lua_State* const state = luaL_newstate();
        luaL_openlibs(state);
        luaopen_lib_talux_lua(state);
        lua_register(state, "bare_read", bareRead);
        lua_register(state, "bare_write", bareWrite);
        lua_register(state, "bare_longs", bareLongs);
        lua_register(state, "bare_new", newLongs);
        return state;
    }();
    return L;
}

// Runs the code n times in a loop of Lua's.
Way luaWay(const std::string& name, const std::string& preparation, const std::string& body) {
    lua_State* const L = lua();
    const std::string chunk = preparation + " return function(n) for i = 1, n do " + body + " end end";
    if (luaL_dostring(L, chunk.c_str()) != 0) fail(lua_tostring(L, -1));
    const int function = luaL_ref(L, LUA_REGISTRYINDEX);
    return {name, [L, function](int n) {
                lua_rawgeti(L, LUA_REGISTRYINDEX, function);
                lua_pushinteger(L, n);
                if (lua_pcall(L, 1, 0, 0) != 0) fail(lua_tostring(L, -1));
            }};
}

Way luaLine(const std::string& line) {
    return luaWay("Lua", "", "talux_command '" + line + "'");
}

template <typename Work>
Way cppWay(std::string name, Work work) {
    return {std::move(name), [work](int n) {
                for (int k = 0; k < n; ++k)
                    work();
            }};
}

Way cppLine(const std::string& line) {
    return cppWay("C++", [line] { evaluate(line); });
}

// ---- The list -----------------------------------------------------------------------------------------

Operation line(const std::string& name, const std::string& text, const std::vector<Way>& bareWays,
               const std::string& judged = "", const std::string& against = "", double goal = 0,
               int batch = 200) {
    std::vector<Way> ways{cppLine(text), luaLine(text)};
    ways.insert(ways.end(), bareWays.begin(), bareWays.end());
    return {name, std::move(ways), judged, against, goal, batch};
}

Operation longArray() {
    constexpr int kCount = 247;
    static VarLong values[kCount];
    static int bareValues[kCount];
    return {"247 longs of conman_status",
            {cppWay("C++",
                    [] {
                        static char name[] = "conman_status";
                        VarGetGlobalLongValueArray(GetParamPropertiesByName(name)->id, values, kCount);
                    }),
             luaWay("Lua", "local get, array = talux_longarray.get, talux_longarray.new(247)",
                    "get(array, 'TLX_conman_status', 1, 247)"),
             cppWay("bare C++", [] { bare::readLongs("conman_status", bareValues, kCount); }),
             luaWay("bare Lua", "local get, array = bare_longs, bare_new(247)",
                    "get(array, 'conman_status', 247)")},
            "Lua",
            "bare Lua",
            1.2,
            200};
}

// A group beside its elements read one by one.
template <class... Elements>
Operation group(const std::string& name, Elements... elements) {
    static const talux::Group<Elements...> whole(name, elements...);
    static std::tuple<typename Elements::Value...> values;
    // A group that nobody has written has no values to read.
    std::apply([&](const auto&... value) { std::ignore = whole.write(value...); }, values);
    return {
        name,
        {cppWay("C++",
                [] {
                    const auto read = [](auto&... value) { return whole.read(value...); };
                    if (std::apply(read, values) != talux::Reading::whole) fail("no group");
                }),
         cppWay("bare C++",
                [elements...] { std::apply([&](auto&... value) { (elements.get(value), ...); }, values); })},
        "C++",
        "bare C++",
        1.1,
        200};
}

Operation saveOneFile() {
    static char path[] = "/one.ini", barePath[] = "/bare.ini";
    return {"save one file",
            {cppWay("C++", [] { VarSaveParamFile(path); }), cppWay("bare C++", [] { bare::save(barePath); })},
            "C++",
            "bare C++",
            1.4,
            5};
}

Operation loadOneFile() {
    static char path[] = "/one.ini";
    return {"load one file",
            {cppWay("C++", [] { VarLoadFile(path, 0); }), cppWay("bare C++", [] { bare::load(path); })},
            "C++",
            "bare C++",
            1.4,
            5};
}

} // namespace

void fail(const std::string& what) {
    std::fprintf(stderr, "talux_bench: %s\n", what.c_str());
    std::exit(1);
}

std::vector<Operation> operations() {
    talux_interpreter_Init();
    VarSetDefault();
    VarUpdateGlobalSpace();
    evaluate("save");
    bare::prepare();
    return {
        line("read TLX_U1_prim", "TLX_U1_prim",
             {cppWay("bare C++",
                     [] {
                         char answer[64];
                         bare::read("TLX_U1_prim", answer);
                     }),
              luaWay("bare Lua", "", "bare_read 'TLX_U1_prim'")},
             "Lua", "bare Lua", 1.5),
        line("write TLX_Uearth=35", "TLX_Uearth=35",
             {cppWay("bare C++", [] { bare::write("TLX_Uearth=35"); }),
              luaWay("bare Lua", "", "bare_write 'TLX_Uearth=35'")},
             "Lua", "bare Lua", 1.5),
        line("compute 1,2,+", "1,2,+", {}, "Lua", "read TLX_U1_prim", 1.0),
        longArray(),
        line("commit all settings", "update", {cppWay("bare C++", [] { bare::commit(); })}, "C++", "bare C++",
             1.15, 5),
        group("read a group of one float", kFirst),
        group("read a group with a record", kFirst.run<42>(), talux::Record<talux::MessRecord01>{}),
        saveOneFile(),
        loadOneFile(),
        line("read a text TLX_Name", "TLX_Name", {}),
        line("read a record", "TLX_MessRecord02 -c", {}),
        line("read 96 doubles by a line", "TLX_vMWR 1.96 -p", {}),
        line("save (two files, commit)", "save", {}, "", "", 0, 3),
        line("load (one file)", "load", {}, "", "", 0, 3),
    };
}

} // namespace bench
