#include "ParamSystem/TALUX_Funcs.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "ParamSystem/support/Locale.h"

namespace {

constexpr std::size_t kMaxText = 49;

// The one procedure of the four parsers; `convert` is the C library's conversion of a whole word.
template <typename Value, typename Convert>
int parseNumber(const char* text, Value* value, Convert convert) {
    const std::size_t length = strnlen(text, kMaxText + 1);
    if (length > kMaxText) return -1;
    char word[kMaxText + 1];
    std::memcpy(word, text, length + 1);

    char* start = word + std::strspn(word, " ");
    if (*start == '\0') return -1;
    start[std::strcspn(start, " ")] = '\0';

    char* end = nullptr;
    *value = convert(start, &end);
    if (*end == '\0') return 1;
    *value = Value{};
    return -2;
}

// The conversions work on 64 bits everywhere, so that every platform clamps to 32 bits alike.
template <int base>
VarLong toLong(const char* word, char** end) {
    using Limits = std::numeric_limits<VarLong>;
    return static_cast<VarLong>(
        std::clamp<long long>(std::strtoll(word, end, base), Limits::min(), Limits::max()));
}

// A minus sign negates within 32 bits: -1 is the largest value.
VarULong toULong(const char* word, char** end) {
    constexpr unsigned long long kMax = std::numeric_limits<VarULong>::max();
    const unsigned long long value = std::strtoull(word, end, 10);
    const unsigned long long magnitude = std::strchr(word, '-') != nullptr ? 0 - value : value;
    return static_cast<VarULong>(magnitude > kMax ? kMax : value);
}

double toDouble(const char* word, char** end) {
    return strtod_l(word, end, talux::cLocale());
}

constexpr std::uint32_t kOddBits = 0x55555555; // bits 0, 2, .. 30

} // namespace

int MakeLong(const char* pValStr, VarLong* pVal) {
    return parseNumber(pValStr, pVal, toLong<10>);
}

int MakeLongFromHex(const char* pValStr, VarLong* pVal) {
    return parseNumber(pValStr, pVal, toLong<16>);
}

int MakeULong(const char* pValStr, VarULong* pVal) {
    return parseNumber(pValStr, pVal, toULong);
}

int MakeDouble(const char* pValStr, double* pVal) {
    return parseNumber(pValStr, pVal, toDouble);
}

int bits(int value) {
    return std::popcount(static_cast<std::uint32_t>(value));
}

int evenbits(int value) {
    return std::popcount(static_cast<std::uint32_t>(value) & ~kOddBits);
}

int oddbits(int value) {
    return std::popcount(static_cast<std::uint32_t>(value) & kOddBits);
}

int strrep(char* pString, char find, char rep) {
    for (; *pString != '\0'; ++pString)
        if (*pString == find) *pString = rep;
    return 1;
}

int CalcExePath(const char* exedatei, char* pfad) {
    std::strcpy(pfad, exedatei); // NOLINT(clang-analyzer-security.insecureAPI.strcpy): the caller's promise
    std::size_t cut = std::strlen(pfad);
    do {
        cut -= cut > 0;
    } while (cut > 0 && std::strchr("/\\:", pfad[cut]) == nullptr);
    pfad[cut] = '\0';
    if (pfad[0] == '"') std::memmove(pfad, pfad + 1, std::strlen(pfad));
    return 1;
}
