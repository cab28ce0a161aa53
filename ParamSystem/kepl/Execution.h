// Carrying decisions out: the one part of the language that touches store, files and system.
#ifndef TALUX_KEPL_EXECUTION_H
#define TALUX_KEPL_EXECUTION_H

#include "ParamSystem/kepl/Decision.h"

namespace talux::kepl {

// What a term makes of the answer of its line; a later one may change it.
enum class Output : unsigned char {
    keep,       // what it was
    topOfStack, // the top of the stack at the end of the line
    text,       // the text that the term has left
    terminator, // alone
    empty,
};

// A number with its type code.
struct TypedNumber {
    double number = 0;
    int type = kTypeNone;
};

// What carrying a term out came to.
struct TermResult {
    Refusal refusal = Refusal::none;
    Output output = Output::keep;
};

constexpr TermResult refused(Refusal refusal) {
    return {refusal, Output::keep};
}

constexpr TermResult answering(Output output) {
    return {Refusal::none, output};
}

struct ValueStack {
    int count = 0;
    double values[kKeplStackSize]; // the lowest `count` are in use, the others left as they are
    int types[kKeplStackSize];

    TermResult push(TypedNumber value) {
        if (count == kKeplStackSize) return refused(Refusal::syntaxError);
        values[count] = value.number;
        types[count] = value.type;
        ++count;
        return answering(Output::topOfStack);
    }
};

// Leaves in the system log that a term touches security.
void logNoted(std::string_view term);

// The same for a term that the caller has no rights to, which is the refusal.
TermResult refusedForRights(std::string_view term);

TermResult compute(Operation operation, ValueStack& stack);

// Each of these leaves a text in `txt`, which has kKeplTextSize bytes, if that is the answer of the term.

// `value`: the number that was read, if the term answers one. Other terms leave there what a caller of
// ProcessCommand finds beside the answer: the last element, or 0 with the type of a text. Else none.
TermResult accessVariable(const VariableDecision& decision, char* txt, std::optional<TypedNumber>& value);

TermResult runCommand(const RunCommand& command, std::string_view term, const char* iniPath, char* txt);

// Streams the output of a shell command to the caller, the terminator last.
TermResult runShell(const RunShell& shell, fnDataOut dataOut, char* terminator, char* txt);

} // namespace talux::kepl

#endif
