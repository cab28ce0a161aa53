/* The three entry functions for programs that link the library. Usable from C and C++. */
#ifndef TALUX_INTERPRETER_H
#define TALUX_INTERPRETER_H

#include "ParamSystem/TALUX_Types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Bytes that hold every answer with a terminator of one character. */
#define TALUX_ANSWER_SIZE 3001

/*
 * Fills the dictionary tables from their compiled-in defaults. Call once before the first line and before
 * a second thread; the Lua module does it itself. The shared memory is attached when the library is loaded.
 */
TALUX_API void talux_interpreter_Init(void);

/*
 * Evaluates one line with full rights.
 * szLine:     at most 254 characters, NUL-terminated.
 * DataOut:    receives the output of shell terms; null discards it.
 * szResult:   buffer for the answer: 3000 bytes plus the terminator's length are always enough.
 * terminator: appended to every answer but the empty one after a shell term, often "\n" or "".
 * Returns 1: answer in szResult; 0: empty line, nothing written; -1: error, fetch it with
 * talux_interpreter_GetError. All callers of a process share one interpreter: one line at a time.
 */
TALUX_API int talux_interpreter_ProcessLine(char* szLine, fnDataOut DataOut, char* szResult,
                                            char* terminator);

/*
 * Copies the text of the last error into buffer (len bytes, zero-padded; without a NUL when the text fills
 * it) and forgets it. The longest text has 127 characters. Returns 1.
 */
TALUX_API int talux_interpreter_GetError(char* buffer, int len);

#ifdef __cplusplus
}

/* The interpreter that the three functions and the Lua module use, made when the library is loaded. */
extern TALUX_API class KEPL_Interpreter clInterpreter;
#endif

#endif
