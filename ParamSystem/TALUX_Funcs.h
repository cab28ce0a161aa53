// Number parsing, bit counters and two text helpers, exported under their plain C names. Usable from C and
// C++.
#ifndef TALUX_FUNCS_H
#define TALUX_FUNCS_H

#include "ParamSystem/TALUX_Types.h"

#ifdef __cplusplus
extern "C" {
#endif

/*
 * The four parsers read the first blank-separated word of `pValStr` (at most 49 characters in all) with
 * the rules of the C library in the C locale; the word must be a number from its first to its last
 * character. Out-of-range values are clamped to 32 bits. The text is never changed; all are thread-safe.
 *
 * Result:  1  parsed, value in *pVal
 *         -1  text empty, only blanks, or longer than 49 characters; *pVal untouched
 *         -2  not a number of the required form; *pVal is 0
 */
TALUX_API int MakeLong(const char* pValStr, VarLong* pVal);        // decimal, signed
TALUX_API int MakeLongFromHex(const char* pValStr, VarLong* pVal); // hexadecimal, sign and 0x allowed
TALUX_API int MakeULong(const char* pValStr, VarULong* pVal);      // decimal, unsigned
TALUX_API int MakeDouble(const char* pValStr, double* pVal);       // point, exponent, inf, nan, hex forms

// Number of set bits among bits 0..31.
TALUX_API int bits(int value);
// Number of set bits among bits 1, 3, .. 31: the even ones when the lowest bit counts as the first.
TALUX_API int evenbits(int value);
// Number of set bits among bits 0, 2, .. 30.
TALUX_API int oddbits(int value);

// Replaces every `find` in the NUL-terminated `pString` by `rep`, in place. Returns 1.
TALUX_API int strrep(char* pString, char find, char rep);

// Directory part of a program path, without its last separator ('/', '\' or ':') and without a leading
// double quote; empty when there is none. `pfad` must hold `exedatei` with its NUL. Returns 1.
TALUX_API int CalcExePath(const char* exedatei, char* pfad);
#ifdef __cplusplus
}
#endif

#endif
