// Executes decisions: the only part of the language that accesses store, files and system.
#ifndef TALUX_KEPL_EXECUTION_H
#define TALUX_KEPL_EXECUTION_H

#include "ParamSystem/kepl/Decision.h"

namespace talux::kepl {

// What the answer of a line is after a term; a later term may change it.
enum class Output : unsigned char {
    keep,       // as before
    topOfStack, // the top of the stack at the end of the line
    text,       // the text of the term
    terminator, // alone
    empty,
};

// A number with its type code.
struct TypedNumber {
    double number = 0;
    int type = kTypeNone;
};

// The result of executing a term.
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

// Logs that a term accesses a security parameter.
void logNoted(std::string_view term);

// Logs that the caller lacks the rights for a term, and returns that refusal.
TermResult refusedForRights(std::string_view term);

TermResult compute(Operation operation, ValueStack& stack);

// Each of these writes a text to `txt`, which has kKeplTextSize bytes, if that is the answer of the term.

// `value`: the number that was read, if the term answers one. If it answers a text, the value that
// ProcessCommand returns with it: the last element, or 0 with the type of a text. Otherwise none.
TermResult accessVariable(const VariableDecision& decision, char* txt, std::optional<TypedNumber>& value);

TermResult runCommand(const RunCommand& command, std::string_view term, const char* iniPath, char* txt);

// Streams the output of a shell command to the caller, the terminator last.
TermResult runShell(const RunShell& shell, fnDataOut dataOut, char* terminator, char* txt);

} // namespace talux::kepl

#endif
