// Why a term is refused.
#ifndef TALUX_KEPL_REFUSAL_H
#define TALUX_KEPL_REFUSAL_H

namespace talux::kepl {

enum class Refusal : unsigned char {
    none, // it is not refused
    indexNotANumber,
    syntaxError,
    indexRequired,
    noIndexAllowed,
    valueTooLow,
    valueTooHigh,
    indexTooLow,
    indexTooHigh,
    index1TooLow,
    index1TooHigh,
    index2TooLow,
    index2TooHigh,
    index1GreaterThanIndex2,
    readOnly,
    writeOnly,
    rightsTooLow, // goes to the system log, too
    bufferOverflow,
    divisionByZero,
    negativeRoot,
    typeUnknown,
};

// What the caller reads, in the language in use.
const char* textOf(Refusal refusal);

} // namespace talux::kepl

#endif
