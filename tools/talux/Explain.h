// Explaining a parameter, as the command explain does it.
#ifndef TALUX_TOOLS_TALUX_EXPLAIN_H
#define TALUX_TOOLS_TALUX_EXPLAIN_H

#include <string>

#include "tools/talux/Command.h"

namespace talux::tool {

// Prints what the parameter is, with its values on the device where there is one. Throws CouldNot for an
// unknown name.
void explain(const std::string& name, const Context& context);

} // namespace talux::tool

#endif
