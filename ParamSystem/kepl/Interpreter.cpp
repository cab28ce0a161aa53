#include <cstring>
#include <string_view>

#include "ParamSystem/KEPL_Interpreter.h"
#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/kepl/Evaluation.h"
#include "ParamSystem/kepl/ValueType.h"
#include "ParamSystem/os/Os.h"
#include "support/Text.h"

using namespace talux;
using kepl::Refusal;

namespace {

void discard(char* /*buffer*/, int /*buffered*/) {}

template <std::size_t size>
int fail(char (&error)[size], Refusal refusal) {
    copyText(error, kepl::textOf(refusal));
    return kLineError;
}

} // namespace

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
    const std::size_t length = strnlen(expression, sizeof strTokenBuffer);
    if (length > kKeplMaxLine) return fail(szError, Refusal::syntaxError);

    // A copy: the answer or an output function may write over the line.
    std::memcpy(strTokenBuffer, expression, length + 1);
    std::string_view rest(strTokenBuffer, length);
    kepl::Evaluation evaluation({DataOut != nullptr ? DataOut : discard, result, terminator}, szIniPath);
    for (std::string_view term; kepl::takeTerm(rest, term);) {
        const kepl::Decision decision = kepl::decide(term, uid, machine);
        const Refusal refusal = evaluation.take(decision);
        if (refusal == Refusal::none) continue;
        // What ends the line is also its answer, but for syntax errors and errors of arithmetic.
        const bool isVariable = decision.get<kepl::VariableDecision>() != nullptr;
        const bool isNoError = decision.get<kepl::RightsTooLow>() != nullptr;
        if (isVariable || isNoError) evaluation.answer(kepl::textOf(refusal));
        return isNoError ? kLineDone : fail(szError, refusal);
    }
    const Refusal refusal = evaluation.finish();
    return refusal == Refusal::none ? kLineDone : fail(szError, refusal);
}

int KEPL_Interpreter::GetError(char* buffer, int len) {
    if (buffer != nullptr && len > 0) std::strncpy(buffer, szError, static_cast<std::size_t>(len));
    szError[0] = '\0';
    return 1;
}

int KEPL_Interpreter::read_machine() {
    char name[65];
    os::machineName(name, sizeof name);
    for (const kepl::BoardRow& row : kepl::kBoards)
        if (row.machine == name) return static_cast<int>(row.board);
    return kepl::kOtherBoard;
}

int KEPL_Interpreter::GetNewValType(int type1, int type2) {
    return kepl::promoted(type1, type2);
}

int KEPL_Interpreter::ProcessCommand(const char* theCommand, char* txt, double* adStack, int* aiType,
                                     int* iSP, int uid) {
    *txt = '\0';
    const kepl::VariableDecision decision = kepl::decideVariable(theCommand, uid);
    const bool isPlace = *iSP >= 0 && *iSP < kKeplStackSize;
    std::optional<kepl::TypedNumber> value;
    const kepl::TermResult result = kepl::accessVariable(decision, txt, value);
    if (value && isPlace) {
        adStack[*iSP] = value->number;
        aiType[*iSP] = value->type;
    }
    if (result.refusal != Refusal::none) return fail(szError, result.refusal);
    if (result.output == kepl::Output::topOfStack && !isPlace) return fail(szError, Refusal::syntaxError);
    return decision.term.value ? 0 : 1;
}
