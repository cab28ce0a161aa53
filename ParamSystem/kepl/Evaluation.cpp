#include "ParamSystem/kepl/Evaluation.h"

#include <cstring>

#include "ParamSystem/dictionary/Types.h"
#include "ParamSystem/kepl/Answer.h"
#include "support/Overloaded.h"
#include "support/Text.h"

namespace talux::kepl {

Refusal Evaluation::take(const Decision& decision) {
    const TermResult result = carryOut(decision);
    if (result.output != Output::keep) output = result.output;
    return result.refusal;
}

TermResult Evaluation::carryOut(const Decision& decision) {
    return std::visit(
        Overloaded{
            [](const SyntaxError&) { return refused(Refusal::syntaxError); },
            [&](const RightsTooLow&) { return refusedForRights(decision.term); },
            [&](const PushNumber& push) -> TermResult {
                // A literal number leaves the answer to other terms.
                return {stack.push({push.number, kTypeDouble}).refusal, Output::keep};
            },
            [&](const Compute& operate) { return compute(operate.operation, stack); },
            [&](const RunCommand& command) { return runCommand(command, decision.term, iniPath, txt); },
            [&](const RunShell& shell) {
                logNoted(decision.term);
                return runShell(shell, caller.dataOut, caller.terminator, txt);
            },
            [&](const VariableDecision& variable) { return access(variable); },
        },
        decision.action);
}

// A number that is read is pushed; a text stays in the result should a later term fail.
TermResult Evaluation::access(const VariableDecision& variable) {
    std::optional<TypedNumber> value;
    const TermResult result = accessVariable(variable, txt, value);
    if (result.output == Output::text) copyText(caller.result, kKeplTextSize, txt);
    return result.output == Output::topOfStack ? stack.push(*value) : result;
}

Refusal Evaluation::finish() {
    switch (output) {
    case Output::terminator:
        answer("");
        return Refusal::none;
    case Output::text:
        answer(txt);
        return Refusal::none;
    case Output::empty:
        *caller.result = '\0';
        return Refusal::none;
    case Output::keep:
    case Output::topOfStack:
        break;
    }
    if (stack.count == 0) return Refusal::syntaxError;
    const int top = stack.count - 1;
    answer(NumberText(stack.values[top], typeOf(stack.types[top]).shownDecimals).view());
    return Refusal::none;
}

void Evaluation::answer(std::string_view text) {
    char* place = caller.result;
    if (!text.empty()) std::memmove(place, text.data(), text.size());
    place += text.size();
    const char* end = caller.terminator; // mostly one character: not worth a call
    do {
        *place++ = *end;
    } while (*end++ != '\0');
}

} // namespace talux::kepl
