// Network interfaces as the kernel has them.
#ifndef TALUX_OS_INTERFACES_H
#define TALUX_OS_INTERFACES_H

namespace talux::os {

inline constexpr int kDottedSize = 16; // "255.255.255.255" and a NUL

struct InterfaceAddress {
    char address[kDottedSize] = "";
    char netmask[kDottedSize] = "";
};

// Both empty when there is no such interface or it has no address.
InterfaceAddress addressOf(const char* interface);

} // namespace talux::os

#endif
