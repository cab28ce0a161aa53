// Carrying decisions out: the one part of the language that touches store, files and system.
#ifndef TALUX_KEPL_EXECUTION_H
#define TALUX_KEPL_EXECUTION_H

#include "ParamSystem/kepl/Decision.h"

namespace talux::kepl {

// What the answer of a line becomes by a term, unless a later one has a say.
enum class Says : unsigned char {
    unchanged,
    value,   // the top of the stack at the end of the line
    text,    // the text that the term has left
    done,    // the terminator alone
    nothing, // the empty text
};

// What carrying a term out came to.
struct TermResult {
    Refusal refusal = Refusal::none;
    Says says = Says::unchanged;
};

constexpr TermResult refused(Refusal refusal) {
    return {refusal, Says::unchanged};
}

constexpr TermResult says(Says what) {
    return {Refusal::none, what};
}

// A place on the value stack, or none.
struct Slot {
    double* value = nullptr;
    int* type = nullptr;

    // False when there is no place.
    bool put(double number, int code) const {
        if (value == nullptr) return false;
        *value = number;
        *type = code;
        return true;
    }
};

struct ValueStack {
    int count = 0;
    double values[kKeplStackSize]; // the lowest `count` are in use, the others left as they are
    int types[kKeplStackSize];

    Slot next() { return count < kKeplStackSize ? Slot{values + count, types + count} : Slot{}; }
};

// Leaves the traces of a decision in the system log.
void log(const Decision& decision);

TermResult compute(Operation operation, ValueStack& stack);

// Each of these leaves a text in `txt`, which has kKeplTextSize bytes, if that is what the term says.

// A number that is read goes into the slot; other terms may leave something there.
TermResult accessVariable(const Decision& decision, char* txt, Slot slot);

TermResult runCommand(const Decision& decision, const char* iniPath, char* txt);

// Streams the output of a shell command to the caller, the terminator last.
TermResult runShellTerm(const Decision& decision, fnDataOut dataOut, char* terminator, char* txt);

} // namespace talux::kepl

#endif
