#include "support/FixedPoint.h"

#include <charconv>
#include <cmath>
#include <cstdint>

#include "support/Text.h"

namespace talux {

namespace {

constexpr std::uint32_t kMillion = 1000000;

// A magnitude in binary fixed point: whole numbers, and fractions in units of 2^-63.
struct FixedPoint {
    std::uint64_t whole;
    std::uint64_t fraction;
};

// False when that would not be exact: infinite, not a number, huge, or with bits below the unit.
bool split(double magnitude, FixedPoint& parts) {
    if (!(magnitude < 0x1p63)) return false;
    parts.whole = static_cast<std::uint64_t>(magnitude);
    const double fraction = (magnitude - static_cast<double>(parts.whole)) * 0x1p63;
    parts.fraction = static_cast<std::uint64_t>(fraction);
    return static_cast<double>(parts.fraction) == fraction;
}

// Rounds to the nearest number, halves to the even one: 1 when `quotient` grows because of the `rest`.
unsigned roundedUp(std::uint64_t quotient, std::uint64_t rest, std::uint64_t half) {
    return rest > half || (rest == half && quotient % 2 == 1) ? 1 : 0;
}

// fraction * 10^6 / 2^63 is fraction * 15625 / 2^57; the product has 77 bits and is computed in halves.
std::uint32_t millionths(std::uint64_t fraction) {
    constexpr std::uint64_t kLow32 = 0xFFFFFFFF, kLow25 = 0x1FFFFFF;
    const std::uint64_t low = (fraction & kLow32) * 15625;
    const std::uint64_t high = (fraction >> 32) * 15625 + (low >> 32);
    const std::uint64_t rest = (high & kLow25) << 32 | (low & kLow32);
    const auto quotient = static_cast<std::uint32_t>(high >> 25);
    return quotient + roundedUp(quotient, rest, std::uint64_t{1} << 56);
}

char* appendMillionths(char* end, std::uint32_t value) {
    constexpr int kDigits = 6;
    for (int k = kDigits - 1; k >= 0; --k, value /= 10)
        end[k] = static_cast<char>('0' + value % 10);
    return end + kDigits;
}

} // namespace

std::size_t formatFixedPoint(char* dest, double number, int decimals) {
    // Processors differ in the sign of not-a-number; it is not shown.
    if (std::isnan(number)) number = std::fabs(number);
    FixedPoint parts{};
    if (!split(std::fabs(number), parts))
        return static_cast<std::size_t>(formatText(dest, kFixedPointSize, "%.*f", decimals, number));

    const std::uint32_t decimalPart = decimals == 0 ? 0 : millionths(parts.fraction);
    parts.whole += decimals == 0 ? roundedUp(parts.whole, parts.fraction, std::uint64_t{1} << 62)
                                 : decimalPart / kMillion;
    char* end = dest;
    if (std::signbit(number)) *end++ = '-';
    end = std::to_chars(end, dest + kFixedPointSize, parts.whole).ptr;
    if (decimals != 0) {
        *end++ = '.';
        end = appendMillionths(end, decimalPart % kMillion);
    }
    *end = '\0';
    return static_cast<std::size_t>(end - dest);
}

} // namespace talux
