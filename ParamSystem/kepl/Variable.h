// Reading and writing one parameter.
#ifndef TALUX_KEPL_VARIABLE_H
#define TALUX_KEPL_VARIABLE_H

#include "ParamSystem/TALUX_Params.h"
#include "ParamSystem/kepl/Answer.h"
#include "ParamSystem/kepl/Refusal.h"
#include "ParamSystem/kepl/VariableTerm.h"

namespace talux::kepl {

class VariableRequest {
public:
    // `term` without its prefix; `txt` has kKeplTextSize bytes; a value goes to index `iSP` of the stack.
    VariableRequest(const char* term, char* txt, double* adStack, int* aiType, int iSP, int uid);

    bool isWrite() const { return term.isWrite(); }

    // Null when done; then a read has left its value in the stack slot and perhaps a text in `txt`.
    Refusal carryOut();

private:
    const char* const wholeTerm;
    VariableTerm term;
    Answer answer;
    double* slotValue; // null when the stack is full
    int* slotType;
    const int uid;

    Refusal read();
    Refusal readScalar(const stParamProperties& row);
    Refusal readRecord(const stParamProperties& row);
    Refusal readRange(const stParamProperties& row);
    Refusal readElement(const stParamProperties& row, VarLong index, Style style);

    Refusal write();
    Refusal writeValue(const stParamProperties& row, int id);
    Refusal writeText(const stParamProperties& row, int id);
    Refusal writeClock(const stParamProperties& row, int id);
    Refusal writeNumber(const stParamProperties& row, int id);

    // Stores a value in the stack slot; false when there is none.
    bool deliver(double value, int type);
};

// Whether the term gives an index where one is needed and none where none is.
Refusal indexPresence(const stParamProperties& row, const VariableTerm& term);

// Whether an index lies in the parameter's range.
Refusal indexRange(const stParamProperties& row, VarLong index, KeplText& tooLow, KeplText& tooHigh);

// Id of an element of an indexed parameter, given its first row.
int elementId(const stParamProperties& row, VarLong index);

// Generic access to the space that the parameter lives in, see VarGetValue.
void readStored(const stParamProperties& row, int id, double* value);
void writeStored(const stParamProperties& row, int id, double* value);

} // namespace talux::kepl

#endif
