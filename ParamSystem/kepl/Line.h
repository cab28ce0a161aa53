// A line while it is evaluated.
#ifndef TALUX_KEPL_LINE_H
#define TALUX_KEPL_LINE_H

#include "ParamSystem/KEPL_Interpreter.h"
#include "ParamSystem/kepl/Refusal.h"

namespace talux::kepl {

// What the answer of a line is; the last term that has a say decides.
enum class Output { terminatorOnly, text, topOfStack, nothing };

// How evaluation goes on behind a term.
enum Flow : int { kNextTerm = 2, kAnswered = kLineDone, kFailed = kLineError };

// What a line uses of the interpreter that evaluates it.
struct LineOwner {
    KEPL_Interpreter& interpreter;
    const char* iniPath;
    StringTokenizer& words; // splits a term into words
    int machine;
    char (&error)[128];
};

// What the caller of a line gave.
struct LineCaller {
    fnDataOut dataOut;
    char* result;
    char* terminator;
    int uid;
};

struct Line : LineOwner, LineCaller {
    Output output = Output::topOfStack;
    int iSP = 0; // values on the stack
    double adStack[kKeplStackSize];
    int aiType[kKeplStackSize];
    char szToken[kKeplMaxTerm + 1]; // the term
    char txt[kKeplTextSize];        // its message

    // Leaves the large arrays as they are: most lines touch little of them.
    Line(const LineOwner& owner, const LineCaller& caller) : LineOwner(owner), LineCaller(caller) {}

    // Makes the first kKeplMaxTerm characters the current term, without their leading blanks.
    void setTerm(const char* text);

    // Ends the line with an error; the result stays as it is.
    Flow fail(Refusal text);

    // Ends the line at once with this text as its answer.
    Flow answer(const char* text);

    // Refuses the term for lack of rights: this is an answer and goes to the system log.
    Flow refuseRights();

    // Makes the text in txt the answer of the line unless a later term changes that.
    Flow showText();

    Flow push(double value, int type);

    // Writes the answer when no term is left.
    Flow finish();
};

// Carries the current term out.
Flow evaluateTerm(Line& line);

} // namespace talux::kepl

#endif
