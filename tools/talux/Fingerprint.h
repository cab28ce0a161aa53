// The settings of a source in one form, and their fingerprint.
#ifndef TALUX_TOOLS_TALUX_FINGERPRINT_H
#define TALUX_TOOLS_TALUX_FINGERPRINT_H

#include "tools/talux/Source.h"

namespace talux::tool {

// A line "TLX_<name>=<value>" for each setting, as a save writes it, sorted. `only`: those of one file, or
// all when it is none. The clock's two are left out. `isShared`: without what belongs to the single device.
std::vector<std::string> linesOf(const Source& source, File only = File::none, bool isShared = false);

// SHA-256 in hexadecimal digits.
std::string fingerprintOf(const std::vector<std::string>& lines);

} // namespace talux::tool

#endif
