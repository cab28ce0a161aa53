// A line while it is evaluated: the value stack, and what the line answers so far.
#ifndef TALUX_KEPL_EVALUATION_H
#define TALUX_KEPL_EVALUATION_H

#include "ParamSystem/kepl/Execution.h"

namespace talux::kepl {

// What the caller of a line gave.
struct LineCaller {
    fnDataOut dataOut;
    char* result;
    char* terminator;
};

class Evaluation {
public:
    // Leaves the large arrays as they are: most lines touch little of them.
    Evaluation(const LineCaller& lineCaller, const char* directory)
        : caller(lineCaller), iniPath(directory) {}

    // Carries one term out, or returns why not.
    Refusal take(const Decision& decision);

    // Writes the answer when no term is left, or returns why there is none.
    Refusal finish();

    // Writes this text as the answer.
    void answer(std::string_view text);

private:
    LineCaller caller;
    const char* iniPath;
    Output output = Output::topOfStack; // the last term that does not keep it decides
    ValueStack stack;
    char txt[kKeplTextSize]; // the text of a term

    TermResult carryOut(const Decision& decision);
    TermResult access(const VariableDecision& variable);
};

} // namespace talux::kepl

#endif
