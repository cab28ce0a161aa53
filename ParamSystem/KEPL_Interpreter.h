// KEPL, the line-oriented command language over the parameter store.
#ifndef KEPL_INTERPRETER_H
#define KEPL_INTERPRETER_H

#include "MenuSystem/TALUX_StringTokenizer.h"
#include "ParamSystem/TALUX_Types.h"

// Longest line and longest term, in bytes.
inline constexpr int kKeplMaxLine = 254;
inline constexpr int kKeplMaxTerm = 127;
// Bytes of the message buffer passed to ProcessCommand.
inline constexpr int kKeplTextSize = 3000;
// Capacity of the stack, in values.
inline constexpr int kKeplStackSize = 128;

// Results of a line.
enum KeplResult : int {
    kLineEmpty = 0,  // nothing written
    kLineDone = 1,   // the answer is in the result buffer
    kLineError = -1, // the error text is held by the interpreter, see GetError
};

/*
 * Evaluates one line at a time: comma-separated terms from left to right on a value stack. One object
 * belongs to one thread. Nothing is allocated.
 */
class TALUX_API KEPL_Interpreter {
public:
    // Attaches the store (VarInit) with `inipath` as the directory of the parameter files; of the path,
    // load commands with a file name use the first 254 characters. No trailing slash.
    explicit KEPL_Interpreter(char* inipath);

    // The tokenizers point to the object's own buffers.
    KEPL_Interpreter(const KEPL_Interpreter&) = delete;
    KEPL_Interpreter& operator=(const KEPL_Interpreter&) = delete;

    /*
     * Evaluates a line.
     * szLine:     the line, at most kKeplMaxLine characters; a longer one is refused as a whole.
     * DataOut:    receives the output of shell terms; null discards it.
     * szResult:   the answer; kKeplTextSize bytes plus the terminator's length are always enough.
     * terminator: appended to every answer but the empty one after a shell term.
     * uid:        rights of the caller, 0 (lowest) to 3 (all).
     * Returns a KeplResult. A refusal for lack of rights and a failed load or save are answers.
     */
    int ProcessLine(char* szLine, fnDataOut DataOut, char* szResult, char* terminator, int uid);

    // Does the work of ProcessLine, which only calls it.
    int GetResult(char* expression, fnDataOut DataOut, char* result, char* terminator, int uid);

    // Copies the last error text into `buffer` (`len` bytes, zero-padded, without a NUL when the text fills
    // it) and forgets it. Returns 1.
    int GetError(char* buffer, int len);

    // Board kind by the kernel's machine name: 0 "armv5tejl", 1 "armv7l", -1 any other or unknown.
    int read_machine();

    // Type code of the result of a binary operation on operands with these codes.
    int GetNewValType(int type1, int type2);

    /*
     * Executes one variable term, given without its prefix (at most kKeplMaxTerm characters).
     * txt: answer text, kKeplTextSize bytes. adStack, aiType: kKeplStackSize values and their type codes;
     * a value that was read is stored at index *iSP, which does not change.
     * Returns 1 read (txt empty: the value is on the stack), 0 written, -1 refused (text for GetError).
     */
    int ProcessCommand(const char* theCommand, char* txt, double* adStack, int* aiType, int* iSP, int uid);

private:
    // Programs contain objects of this layout, so unused members remain.
    char szIniPath[255];
    char strTokenBuffer[255]; // the line
    char strSubTokenBuffer[255];
    StringTokenizer clStringTokenizer; // of lines and terms, which are split without them
    StringTokenizer clSubTokenizer;
    char szError[128];
    int machine;
};

// Element of the two-language texts that is in use: 0 German, 1 English.
inline constexpr int iLanguage = 1;

// A text in German and English.
using KeplText = const char* const[2];

extern TALUX_API KeplText szIndexNotANumber;
extern TALUX_API KeplText szSyntaxError;
extern TALUX_API KeplText szIndexRequired;
extern TALUX_API KeplText szParameterRequired;
extern TALUX_API KeplText szNoIndexAllowed;
extern TALUX_API KeplText szValueTooLow;
extern TALUX_API KeplText szValueTooHigh;
extern TALUX_API KeplText szIndexTooLow;
extern TALUX_API KeplText szIndexTooHigh;
extern TALUX_API KeplText szIndex1TooLow;
extern TALUX_API KeplText szIndex1TooHigh;
extern TALUX_API KeplText szIndex2TooLow;
extern TALUX_API KeplText szIndex2TooHigh;
extern TALUX_API KeplText szIndex1gtIndex2;
extern TALUX_API KeplText szReadOnly;
extern TALUX_API KeplText szWriteOnly;
extern TALUX_API KeplText szUIDWrong;
extern TALUX_API KeplText szNotAllowed;
extern TALUX_API KeplText szBufferOverflow;

// Command lines known to the device's other programs, each table ended by a null entry. Shell terms do
// not consult them.
extern TALUX_API const char* const allowedEasyCommands[45];
extern TALUX_API const char* const allowedConnectedCommands[7];

#endif
