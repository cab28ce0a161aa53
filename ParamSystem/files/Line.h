// The parameter files as they are written:
//
//     file    = { line }                     in table order, each setting once
//     line    = "TLX_" name "=" value LF
//     value   = integer                      long, int, enum, bool
//             | decimal                      float, double: "%f", six decimals and no exponent
//             | '"' text '"'                 up to its first CR or LF, nothing escaped
//             | '"' n "." n "." n "." n '"'  addresses, without leading zeros
//             | '"' date '"' | '"' time '"'  of the system clock: YYYY-MM-DD, hh:mm:ss
//
// Addresses lie in ip_config.ini, other settings with userlevel 3 in sec_parameter.ini, the rest in
// parameter.ini. What a reader accepts beyond that is described in docs/files.md: comments (lines without the
// prefix, and the rest of a value without quotes from "#", ";" or "//" on), blanks, values without quotes.
// These do not come back as they were: digits after the sixth decimal, a text after a double quote or "=",
// not-a-number in an integer, date and time.
#ifndef TALUX_FILES_LINE_H
#define TALUX_FILES_LINE_H

#include <cstddef>
#include <ctime>
#include <optional>
#include <string_view>

#include "ParamSystem/files/ParameterFile.h"
#include "ParamSystem/store/Values.h"

namespace talux {

// Room for the longest line: a name, and a double with its 309 digits.
inline constexpr std::size_t kLineSize = 512;

// Writes the line of a parameter with a value, line feed and NUL included, into `line`, which has room for
// kLineSize characters, and returns its length. 0 when the parameter has no line or the value is not of its
// nature.
std::size_t formatLine(char* line, const stParamProperties& row, const Value& value);

// The date or the time that the system clock shows.
Value clockValue(Nature nature, const std::tm& now);

// What a save writes for a parameter: the value in the global space, and for the two that show the system
// clock its date and time, which `now` is. Nothing for a parameter without a line.
std::optional<Value> savedValue(const stParamProperties& row, const std::tm& now);

} // namespace talux

#endif
