// The built-in commands: load, save and commit.
#ifndef TALUX_KEPL_BUILTIN_H
#define TALUX_KEPL_BUILTIN_H

#include "ParamSystem/kepl/Line.h"

namespace talux::kepl {

Flow loadAddresses(Line& line);
Flow loadSecurity(Line& line);
Flow loadParameters(Line& line);
Flow saveAddresses(Line& line);
Flow saveSecurity(Line& line);
Flow saveParameters(Line& line);
Flow update(Line& line);

} // namespace talux::kepl

#endif
