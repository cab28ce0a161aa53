/* The types and macros that every public header of the library shares. Usable from C and C++. */
#ifndef TALUX_TYPES_H
#define TALUX_TYPES_H

#include "support/Types.h"

#endif
