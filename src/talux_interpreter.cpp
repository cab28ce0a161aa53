#include "src/talux_interpreter.h"

#include "ParamSystem/KEPL_Interpreter.h"
#include "ParamSystem/TALUX_ParamStrings.h"
#include "ParamSystem/TALUX_Params.h"

namespace {

constexpr int kFullRights = 3;

// Parameter files lie in the root folder.
constinit char inipath[] = "";

} // namespace

// The only object of the library that is initialised at run time: everything that its constructor reaches is
// ready before.
KEPL_Interpreter clInterpreter(inipath);

void talux_interpreter_Init() {
    LoadDefParamProperties();
    LoadDefParamStrings();
}

int talux_interpreter_ProcessLine(char* szLine, fnDataOut DataOut, char* szResult, char* terminator) {
    return clInterpreter.ProcessLine(szLine, DataOut, szResult, terminator, kFullRights);
}

int talux_interpreter_GetError(char* buffer, int len) {
    return clInterpreter.GetError(buffer, len);
}
