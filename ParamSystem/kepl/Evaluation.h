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

    // Carries one term out, or tells why not.
    Refusal take(const Decision& decision);

    // Writes the answer when no term is left, or tells why there is none.
    Refusal finish();

    // Writes this text as the answer.
    void answer(std::string_view text);

private:
    LineCaller caller;
    const char* iniPath;
    Says output = Says::value; // the last term that had a say decides
    ValueStack stack;
    char txt[kKeplTextSize]; // what a term says

    TermResult carryOut(const Decision& decision);
};

} // namespace talux::kepl

#endif
