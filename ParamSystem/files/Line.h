// One line of a parameter file: key, "=", value.
#ifndef TALUX_FILES_LINE_H
#define TALUX_FILES_LINE_H

#include <ctime>

#include "ParamSystem/TALUX_Params.h"

namespace talux {

// Room for the longest value, a double with its 309 digits, and a name.
inline constexpr int kLineSize = 512;

// Formats the line of a parameter as it stands in the global space, line feed included. `now` stands for
// the system clock's date and time. False when the parameter has no line.
bool formatLine(char (&line)[kLineSize], const stParamProperties& row, const std::tm& now);

} // namespace talux

#endif
