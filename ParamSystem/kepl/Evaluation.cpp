#include "ParamSystem/kepl/Evaluation.h"

#include <cstring>

#include "ParamSystem/dictionary/Types.h"
#include "ParamSystem/kepl/Answer.h"
#include "support/Text.h"

namespace talux::kepl {

namespace {

// A literal number leaves the answer to other terms.
TermResult push(double number, ValueStack& stack) {
    return {stack.push({number, kTypeDouble}).refusal, Output::keep};
}

// A number that is read is pushed.
TermResult carryOutVariable(const Decision& decision, char* txt, ValueStack& stack) {
    std::optional<TypedNumber> value;
    const TermResult result = accessVariable(decision, txt, value);
    return result.output == Output::topOfStack ? stack.push(*value) : result;
}

} // namespace

Refusal Evaluation::take(const Decision& decision) {
    const TermResult result = carryOut(decision);
    if (result.refusal != Refusal::none || result.output == Output::keep) return result.refusal;
    output = result.output;
    // A text that was read stays in the result should a later term fail.
    if (decision.isVariable && output == Output::text) copyText(caller.result, kKeplTextSize, txt);
    return Refusal::none;
}

TermResult Evaluation::carryOut(const Decision& decision) {
    switch (decision.action) {
    case Action::refuse:
        return refused(decision.refusal);
    case Action::push:
        return push(decision.value->number(), stack);
    case Action::compute:
        return compute(decision.operation, stack);
    case Action::command:
        return runCommand(decision, iniPath, txt);
    case Action::shell:
    case Action::askForShell:
    case Action::endProcess:
        return runShellTerm(decision, caller.dataOut, caller.terminator, txt);
    case Action::readScalar:
    case Action::readElements:
    case Action::readRecord:
    case Action::write:
    case Action::setClock:
        break;
    }
    return carryOutVariable(decision, txt, stack);
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
