// The canonical listing of the settings of a source, and its fingerprint.
#ifndef TALUX_TOOLS_TALUX_LISTING_H
#define TALUX_TOOLS_TALUX_LISTING_H

#include "tools/talux/Source.h"

namespace talux::tool {

struct Listing {
    std::string text; // a line "TLX_<name>=<value>" for each setting, as a save writes it, by name
    int settings = 0;
};

// `only`: the settings of one file, or of all when it is none. The clock's two are left out.
// `isShared`: without what belongs to the single device.
Listing listingOf(const Source& source, reference::File only = reference::File::none, bool isShared = false);

// SHA-256 in hexadecimal digits.
std::string fingerprintOf(const Listing& listing);

} // namespace talux::tool

#endif
