// Conversions of numbers that are the same on every processor, without undefined behaviour.
#ifndef TALUX_SUPPORT_NUMBER_H
#define TALUX_SUPPORT_NUMBER_H

#include <bit>
#include <cstdint>
#include <limits>
#include <type_traits>

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

// The low bits of a number without its fraction; beyond 32 bits (64 where the integer has them) the nearest
// limit. A double stays as it is.
template <typename Stored>
constexpr Stored truncated(double value) {
    if constexpr (std::is_floating_point_v<Stored>)
        return value;
    else if constexpr (sizeof(Stored) <= 4)
        return static_cast<Stored>(saturated32(value));
    constexpr double kBeyond = 9223372036854775808.0; // 2^63
    if (value != value) return 0;
    if (value >= kBeyond) return std::numeric_limits<Stored>::max();
    if (value < -kBeyond) return std::numeric_limits<Stored>::min();
    return static_cast<Stored>(value);
}

// A float as a double and back. Processors differ in what becomes of a not-a-number (its sign, its quiet
// bit); here it keeps all of its bits both ways, so that a copy through a double is exact for every pattern.
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
