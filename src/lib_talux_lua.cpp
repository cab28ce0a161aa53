#include "src/lib_talux_lua.h"

#include <cstring>

#include "ParamSystem/KEPL_Interpreter.h"
#include "ParamSystem/os/Os.h"
#include "src/LuaApi.h"
#include "src/NumberArray.h"
#include "src/talux_interpreter.h"
#include "support/Number.h"

namespace {

// Bytes that a script's answer may take, its newline and NUL included.
constexpr std::size_t kAnswerLimit = 1000;
// Bytes of the buffer for an error text; the longest text is shorter.
constexpr int kErrorLimit = 254;

constinit char newline[] = "\n";

// Output of shell terms never reaches a script.
void funcStdOut(char* /*buffer*/, int /*buffered*/) {}

// Evaluates a line into `answer`, which holds whatever the interpreter may write.
const char* evaluate(const char* line, char (&answer)[TALUX_ANSWER_SIZE]) {
    answer[0] = '\0';
    if (talux_interpreter_ProcessLine(const_cast<char*>(line), funcStdOut, answer, newline) != 1) {
        talux_interpreter_GetError(answer, kErrorLimit);
        answer[kErrorLimit] = '\0';
    }
    const std::size_t length = std::strlen(answer);
    if (length >= kAnswerLimit) return szBufferOverflow[iLanguage];
    if (length > 0 && answer[length - 1] == '\n') answer[length - 1] = '\0';
    return answer;
}

int talux_command(lua_State* L) {
    std::size_t length = 0;
    const char* const line = lua_tolstring(L, 1, &length);
    if (line == nullptr) return luaL_argerror(L, 1, "line expected");
    char answer[TALUX_ANSWER_SIZE];
    const bool whole = std::strlen(line) == length;
    lua_pushstring(L, whole ? evaluate(line, answer) : szSyntaxError[iLanguage]);
    return 1;
}

int talux_getlasterror(lua_State* L) {
    lua_pushstring(L, talux::lastArrayError());
    return 1;
}

int talux_usleep(lua_State* L) {
    const int microseconds = talux::saturated32(lua_tonumberx(L, 1, nullptr));
    if (microseconds > 0) talux::os::sleepMicroseconds(static_cast<unsigned>(microseconds));
    return 0;
}

void setGlobalFunction(lua_State* L, const char* name, lua_CFunction function) {
    lua_pushcclosure(L, function, 0);
    lua_setglobal(L, name);
}

void setGlobalTable(lua_State* L, const char* name, const luaL_Reg* functions) {
    lua_createtable(L, 0, 0);
    luaL_setfuncs(L, functions, 0);
    lua_setglobal(L, name);
}

} // namespace

int luaopen_lib_talux_lua(lua_State* L) {
    talux_interpreter_Init();
    setGlobalFunction(L, "talux_usleep", talux_usleep);
    setGlobalFunction(L, "talux_command", talux_command);
    setGlobalFunction(L, "talux_getlasterror", talux_getlasterror);
    setGlobalTable(L, "talux_longarray", talux::longArrayFunctions);
    setGlobalTable(L, "talux_doublearray", talux::doubleArrayFunctions);
    return 0;
}
