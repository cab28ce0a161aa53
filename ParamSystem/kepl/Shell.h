// Terms that run a shell command.
#ifndef TALUX_KEPL_SHELL_H
#define TALUX_KEPL_SHELL_H

#include "ParamSystem/kepl/Line.h"

namespace talux::kepl {

// Runs the rest of the term in the shell and streams its output to the caller. A command that the board
// forbids ends the process.
Flow shellTerm(Line& line);

} // namespace talux::kepl

#endif
