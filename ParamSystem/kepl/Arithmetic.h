// The terms that compute on the value stack.
#ifndef TALUX_KEPL_ARITHMETIC_H
#define TALUX_KEPL_ARITHMETIC_H

#include "ParamSystem/kepl/Line.h"

namespace talux::kepl {

Flow add(Line& line);
Flow subtract(Line& line);
Flow multiply(Line& line);
Flow divide(Line& line);

Flow sine(Line& line);
Flow cosine(Line& line);
Flow tangent(Line& line);
Flow toDegrees(Line& line);
Flow toRadians(Line& line);
Flow square(Line& line);
Flow squareRoot(Line& line);

// Pushes the number that the term is; any other term is a syntax error.
Flow number(Line& line);

} // namespace talux::kepl

#endif
