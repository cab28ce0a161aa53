#include <algorithm>
#include <cstring>
#include <iterator>
#include <string_view>

#include "ParamSystem/KEPL_Interpreter.h"
#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/kepl/Line.h"
#include "ParamSystem/kepl/ValueType.h"
#include "ParamSystem/kepl/Variable.h"
#include "ParamSystem/os/Os.h"
#include "ParamSystem/support/Text.h"

using namespace talux;

KEPL_Interpreter::KEPL_Interpreter(char* inipath) {
    VarInit(inipath);
    copyText(szIniPath, inipath);
    clStringTokenizer.SetBuffer(strTokenBuffer, sizeof strTokenBuffer);
    clSubTokenizer.SetBuffer(strSubTokenBuffer, sizeof strSubTokenBuffer);
    szError[0] = '\0';
    machine = read_machine();
}

int KEPL_Interpreter::ProcessLine(char* szLine, fnDataOut DataOut, char* szResult, char* terminator,
                                  int uid) {
    return GetResult(szLine, DataOut, szResult, terminator, uid);
}

int KEPL_Interpreter::GetResult(char* expression, fnDataOut DataOut, char* result, char* terminator,
                                int uid) {
    if (*expression == '\0') return kLineEmpty;

    szError[0] = '\0';
    kepl::Line line({*this, szIniPath, clSubTokenizer, machine, szError}, {DataOut, result, terminator, uid});
    if (strnlen(expression, sizeof strTokenBuffer) > kKeplMaxLine)
        return line.fail(kepl::refuse(szSyntaxError));

    clStringTokenizer.SetString(expression, ",", false);
    while (clStringTokenizer.hasMoreTokens()) {
        line.setTerm(clStringTokenizer.nextToken());
        const kepl::Flow flow = kepl::evaluateTerm(line);
        if (flow != kepl::kNextTerm) return flow;
    }
    return line.finish();
}

int KEPL_Interpreter::GetError(char* buffer, int len) {
    if (buffer != nullptr && len > 0) std::strncpy(buffer, szError, static_cast<std::size_t>(len));
    szError[0] = '\0';
    return 1;
}

int KEPL_Interpreter::read_machine() {
    constexpr std::string_view machines[] = {"armv5tejl", "armv7l"};
    char name[65];
    os::machineName(name, sizeof name);
    const auto* const found = std::ranges::find(machines, std::string_view(name));
    return found == std::end(machines) ? -1 : static_cast<int>(found - machines);
}

int KEPL_Interpreter::GetNewValType(int type1, int type2) {
    return kepl::promoted(type1, type2);
}

int KEPL_Interpreter::ProcessCommand(const char* theCommand, char* txt, double* adStack, int* aiType,
                                     int* iSP, int uid) {
    kepl::VariableRequest request(theCommand, txt, adStack, aiType, *iSP, uid);
    const kepl::Refusal refusal = request.carryOut();
    if (refusal == nullptr) return request.isWrite() ? 0 : 1;

    if (refusal == kepl::refuse(szUIDWrong)) os::logError("%s %s", theCommand, refusal);
    copyText(szError, refusal);
    return -1;
}
