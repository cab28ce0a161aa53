// Dotted addresses as they are stored, and as the operating system wants them.
#ifndef TALUX_SUPPORT_ADDRESS_H
#define TALUX_SUPPORT_ADDRESS_H

#include <cstddef>

namespace talux {

// Room for any normalised address: four 32-bit numbers, three dots, a NUL.
inline constexpr std::size_t kWholeAddressSize = 48;

// Rewrites an address without leading zeros: its first four pieces between dots (runs of dots count as
// one) as decimal numbers, 0 for a piece that is missing or has no number. "192.168.001.010" becomes
// "192.168.1.10", "" becomes "0.0.0.0". At most size - 1 characters and a NUL are written to `dest`.
void normaliseAddress(char* dest, std::size_t size, const char* text);

template <std::size_t N>
void normaliseAddress(char (&dest)[N], const char* text) {
    normaliseAddress(dest, N, text);
}

} // namespace talux

#endif
