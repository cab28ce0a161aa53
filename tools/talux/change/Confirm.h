// An address that is taken back by itself unless somebody who reaches the device confirms it.
//
// The old addresses stand in a record beside the parameter files (openAddress) as long as nobody has
// confirmed the new ones, and ip_config.ini keeps the old ones until then: what starts without talux has
// them, too. A process of its own, which neither the terminal nor the command takes with it, waits for the
// time to pass.
#ifndef TALUX_TOOLS_TALUX_CHANGE_CONFIRM_H
#define TALUX_TOOLS_TALUX_CHANGE_CONFIRM_H

#include "tools/talux/change/Journal.h"

namespace talux::tool {

// Puts the old addresses into working copy, live values and file, and `applies` them to the system. False
// when none waits to be confirmed.
bool takeAddressBack(bool applies, const Context& context);

} // namespace talux::tool

#endif
