// Dotted addresses as they are stored, and as the operating system wants them.
#ifndef TALUX_SUPPORT_ADDRESS_H
#define TALUX_SUPPORT_ADDRESS_H

#include <cstddef>

namespace talux {

struct AddressParts {
    int part[4] = {};
};

// The first four pieces between dots, runs of which count as one; a piece that is missing or no number is 0.
// Numbers are clamped to 32 bits.
AddressParts addressPartsIn(const char* text);

// Characters of the longest text of an address: four 32-bit numbers and three dots.
inline constexpr std::size_t kMaxAddressText = 4 * 11 + 3;

// Writes "192.168.1.10" without a NUL to `end` and returns its end.
char* appendAddress(char* end, const AddressParts& address);

} // namespace talux

#endif
