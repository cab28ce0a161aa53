// From floating point to whole numbers without undefined behaviour.
#ifndef TALUX_SUPPORT_NUMBER_H
#define TALUX_SUPPORT_NUMBER_H

#include <cstdint>
#include <limits>

namespace talux {

// Truncates toward zero; beyond the 32 bits of the integer the nearest limit, 0 for not-a-number.
template <typename Integer>
constexpr Integer saturated(double value) {
    using Limits = std::numeric_limits<Integer>;
    static_assert(sizeof(Integer) == 4, "the limits are exact in a double");
    if (value != value) return 0;
    if (value >= Limits::max()) return Limits::max();
    if (value <= Limits::min()) return Limits::min();
    return static_cast<Integer>(value);
}

constexpr std::int32_t saturated32(double value) {
    return saturated<std::int32_t>(value);
}

} // namespace talux

#endif
