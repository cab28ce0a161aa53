// Conversions of numbers that are the same on every processor, without undefined behaviour.
#ifndef TALUX_SUPPORT_NUMBER_H
#define TALUX_SUPPORT_NUMBER_H

#include <bit>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace talux {

// Truncates toward zero; beyond the range of the integer the nearest limit, 0 for not-a-number.
template <typename Integer>
constexpr Integer saturated(double value) {
    using Limits = std::numeric_limits<Integer>;
    constexpr Integer kHalf = Limits::max() / 2 + 1; // of the maximum plus 1, which a double can hold
    constexpr double kEnd = 2.0 * static_cast<double>(kHalf);
    if (value != value) return 0;
    if (value >= kEnd) return Limits::max();
    if (value <= static_cast<double>(Limits::min())) return Limits::min();
    return static_cast<Integer>(value);
}

constexpr std::int32_t saturated32(double value) {
    return saturated<std::int32_t>(value);
}

// The low bits of a number without its fraction; beyond 32 bits (64 where the integer has them) the nearest
// limit. A double is returned unchanged.
template <typename Stored>
constexpr Stored truncated(double value) {
    if constexpr (std::is_floating_point_v<Stored>)
        return value;
    else if constexpr (sizeof(Stored) <= 4)
        return static_cast<Stored>(saturated32(value));
    else
        return saturated<Stored>(value);
}

// A float as a double and back. Processors differ in how they convert a not-a-number (its sign, its quiet
// bit); here all of its bits are copied both ways, so that a copy through a double is exact for every
// pattern.
constexpr double widened(float value) {
    if (value == value) return static_cast<double>(value);
    const std::uint64_t bits = std::bit_cast<std::uint32_t>(value);
    return std::bit_cast<double>((bits & 0x80000000) << 32 | 0x7FF0000000000000 | (bits & 0x007FFFFF) << 29);
}

constexpr float narrowed(double value) {
    if (value == value) return static_cast<float>(value);
    const auto bits = std::bit_cast<std::uint64_t>(value);
    const auto sign = static_cast<std::uint32_t>(bits >> 32 & 0x80000000);
    const auto payload = static_cast<std::uint32_t>(bits >> 29 & 0x007FFFFF);
    return std::bit_cast<float>(sign | 0x7F800000 | (payload != 0 ? payload : 0x00400000));
}

} // namespace talux

#endif
