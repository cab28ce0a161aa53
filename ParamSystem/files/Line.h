// The lines of a parameter file as they are written:
//
//     file    = { line }                     in table order, each setting once
//     line    = "TLX_" name "=" value LF
//     value   = integer                      long, int, enum, bool
//             | decimal                      float, double: "%f", six decimals and no exponent
//             | '"' text '"'                 up to its first CR or LF, nothing escaped
//             | '"' n "." n "." n "." n '"'  addresses, without leading zeros
//             | '"' date '"' | '"' time '"'  of the system clock, see files/ClockText.h
//
// A load does not restore these: digits after the sixth decimal, a text after a double quote or "=",
// not-a-number in an integer, date and time. files/Reader.h has the grammar of the reader, which accepts
// more.
#ifndef TALUX_FILES_LINE_H
#define TALUX_FILES_LINE_H

#include <cstddef>

#include "ParamSystem/store/Values.h"

namespace talux {

// Bytes of the longest line: a name, and a double with its 309 digits.
inline constexpr std::size_t kLineSize = 512;

// Writes the line of a parameter with a value, line feed and NUL included, into `line`, a buffer of kLineSize
// characters, and returns its length. 0 when the parameter has no line or the value is not of its nature.
std::size_t formatLine(char* line, const stParamProperties& row, const Value& value);

} // namespace talux

#endif
