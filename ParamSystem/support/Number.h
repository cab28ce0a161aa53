// From floating point to whole numbers without undefined behaviour.
#ifndef TALUX_SUPPORT_NUMBER_H
#define TALUX_SUPPORT_NUMBER_H

#include <cstdint>

namespace talux {

// Truncates toward zero; beyond 32 bits the nearest limit, 0 for not-a-number.
constexpr std::int32_t saturated32(double value) {
    if (value != value) return 0;
    if (value >= INT32_MAX) return INT32_MAX;
    if (value <= INT32_MIN) return INT32_MIN;
    return static_cast<std::int32_t>(value);
}

} // namespace talux

#endif
