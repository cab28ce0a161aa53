// Numbers as text with a fixed number of decimals.
#ifndef TALUX_SUPPORT_FIXEDPOINT_H
#define TALUX_SUPPORT_FIXEDPOINT_H

#include <cstddef>

namespace talux {

// Bytes of any double with six decimals: sign, 309 digits, point, decimals, NUL.
inline constexpr std::size_t kFixedPointSize = 320;

// The text that printf prints for "%.0f" (`decimals` 0) or "%f" (`decimals` 6) in the C locale, several times
// faster for ordinary numbers; "nan" for every not-a-number. `dest` has kFixedPointSize bytes. Returns the
// length.
std::size_t formatFixedPoint(char* dest, double number, int decimals);

} // namespace talux

#endif
