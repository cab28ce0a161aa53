// Reads the fields of tab-separated data records one after the other, texts into a shared string space.
#ifndef TALUX_DATA_H
#define TALUX_DATA_H

#include <cstdio>

#include "MenuSystem/TALUX_StringTokenizer.h"
#include "support/Types.h"

// Bytes of the string space, terminating NULs included.
inline constexpr int kDataStringSpaceSize = 40000;
// Longest text of one field, in characters.
inline constexpr int kDataMaxText = 254;

// Frees the whole string space; texts returned before become invalid.
TALUX_API void Data_StringReset();

// Copies `txt` into the string space. Returns the copy, valid until the next reset, or null when it does
// not fit or the space was never reset. Not thread-safe.
TALUX_API char* Data_StringSave(const char* txt);
TALUX_API char* Data_StringSave(char* txt); // for programs that declare it like this

/*
 * Take the next field of a record from `pTokenizer`, which has been set up on the record's line, and store
 * it in *field. From then on the tokenizer splits at tab and newline.
 *
 * modulename, fieldname: the reader and the field as named in messages.
 * fd_src: the file being read.
 *
 * A missing or malformed field prints "\nError (<module>): no value for field '<field>'\n" (or "no valid
 * value", "no string space") to standard output, closes fd_src and ends the process with exit status 2;
 * *field is then untouched. Not thread-safe.
 */
// A parameter or text symbol, letter case ignored; stores its id.
TALUX_API void Data_SetSymbol(const char* modulename, int* field, const char* fieldname,
                              StringTokenizer* pTokenizer, FILE* fd_src);
// A whole number.
TALUX_API void Data_SetInt(const char* modulename, int* field, const char* fieldname,
                           StringTokenizer* pTokenizer, FILE* fd_src);
// A number.
TALUX_API void Data_SetDouble(const char* modulename, double* field, const char* fieldname,
                              StringTokenizer* pTokenizer, FILE* fd_src);
// The text between the first and the last double quote, at most kDataMaxText characters, stored in
// the string space.
TALUX_API void Data_SetText(const char* modulename, char** field, const char* fieldname,
                            StringTokenizer* pTokenizer, FILE* fd_src);

#endif
