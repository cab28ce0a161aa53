#include <cstring>

#include "ParamSystem/KEPL_Interpreter.h"
#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/dictionary/Types.h"
#include "ParamSystem/kepl/Execution.h"
#include "ParamSystem/kepl/ValueType.h"
#include "ParamSystem/os/Os.h"
#include "support/FixedPoint.h"
#include "support/Overloaded.h"
#include "support/Text.h"

using namespace talux;
using namespace talux::kepl;

namespace {

void discard(char* /*buffer*/, int /*buffered*/) {}

template <std::size_t size>
int fail(char (&error)[size], Refusal refusal) {
    copyText(error, textOf(refusal));
    return kLineError;
}

// Where the results of a line go.
struct Target {
    fnDataOut dataOut;
    char* result;
    char* terminator;
};

// A line while it is evaluated: the value stack, and what the line answers so far.
class Evaluation {
public:
    // Leaves the large arrays uninitialised: most lines use little of them.
    Evaluation(const Target& callers, const char* directory) : target(callers), iniPath(directory) {}

    // Returns why there is an error instead of an answer.
    Refusal run(std::string_view line, int uid, int board) {
        for (std::string_view term; takeTerm(line, term);) {
            const Decision decision = decide(term, uid, board);
            const TermResult result = carryOut(decision);
            if (result.refusal != Refusal::none) return end(decision, result.refusal);
            if (result.output != Output::keep) output = result.output;
        }
        return finish();
    }

private:
    const Target target;
    const char* const iniPath;
    Output output = Output::topOfStack; // the last term that does not keep it decides
    ValueStack stack;
    char txt[kKeplTextSize]; // the text of a term

    TermResult carryOut(const Decision& decision) {
        return std::visit(
            Overloaded{
                [](const SyntaxError&) { return refused(Refusal::syntaxError); },
                [&](const RightsTooLow&) { return refusedForRights(decision.term); },
                [&](const PushNumber& push) -> TermResult {
                    // A literal number leaves the answer to other terms.
                    return {stack.push({push.number, kTypeDouble}).refusal, Output::keep};
                },
                [&](const Compute& operate) { return compute(operate.operation, stack); },
                [&](const RunCommand& run) { return runCommand(run, decision.term, iniPath, txt); },
                [&](const RunShell& shell) {
                    logNoted(decision.term);
                    return runShell(shell, target.dataOut, target.terminator, txt);
                },
                [&](const VariableDecision& variable) { return readOrWrite(variable); },
            },
            decision.action);
    }

    // A number that is read is pushed; a text stays in the result should a later term fail.
    TermResult readOrWrite(const VariableDecision& variable) {
        std::optional<TypedNumber> value;
        const TermResult result = accessVariable(variable, txt, value);
        if (result.output == Output::text) copyText(target.result, kKeplTextSize, txt);
        return result.output == Output::topOfStack ? stack.push(*value) : result;
    }

    // A refusal is also the answer of the line, except syntax errors and arithmetic errors. Lack of
    // rights for a command is no error.
    Refusal end(const Decision& decision, Refusal refusal) {
        const bool isNoError = decision.get<RightsTooLow>() != nullptr;
        if (isNoError || decision.get<VariableDecision>() != nullptr) answer(textOf(refusal));
        return isNoError ? Refusal::none : refusal;
    }

    // Writes the answer when no term is left, or returns why there is none.
    Refusal finish() {
        switch (output) {
        case Output::terminator:
            answer("");
            return Refusal::none;
        case Output::text:
            answer(txt);
            return Refusal::none;
        case Output::empty:
            *target.result = '\0';
            return Refusal::none;
        case Output::keep:
        case Output::topOfStack:
            break;
        }
        if (stack.count == 0) return Refusal::syntaxError;
        const int top = stack.count - 1;
        const int decimals = typeOf(stack.types[top]).shownDecimals;
        terminate(formatFixedPoint(target.result, stack.values[top], decimals));
        return Refusal::none;
    }

    void answer(std::string_view text) {
        if (!text.empty()) std::memcpy(target.result, text.data(), text.size());
        terminate(text.size());
    }

    // Ends an answer of this length.
    void terminate(std::size_t length) {
        char* end = target.result + length;
        const char* from = target.terminator; // mostly one character: not worth a call
        do {
            *end++ = *from;
        } while (*from++ != '\0');
    }
};

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
    std::memcpy(strTokenBuffer, expression, length);
    const fnDataOut dataOut = DataOut != nullptr ? DataOut : discard;
    Evaluation evaluation({dataOut, result, terminator}, szIniPath);
    const Refusal refusal = evaluation.run({strTokenBuffer, length}, uid, machine);
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
    for (const BoardRow& row : kBoards)
        if (row.machine == name) return static_cast<int>(row.board);
    return kOtherBoard;
}

int KEPL_Interpreter::GetNewValType(int type1, int type2) {
    return promoted(type1, type2);
}

int KEPL_Interpreter::ProcessCommand(const char* theCommand, char* txt, double* adStack, int* aiType,
                                     int* iSP, int uid) {
    *txt = '\0';
    const VariableDecision decision(theCommand, uid);
    const bool isPlace = *iSP >= 0 && *iSP < kKeplStackSize;
    std::optional<TypedNumber> value;
    const TermResult result = accessVariable(decision, txt, value);
    if (value && isPlace) {
        adStack[*iSP] = value->number;
        aiType[*iSP] = value->type;
    }
    if (result.refusal != Refusal::none) return fail(szError, result.refusal);
    if (result.output == Output::topOfStack && !isPlace) return fail(szError, Refusal::syntaxError);
    return decision.term.value ? 0 : 1;
}
