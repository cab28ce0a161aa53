#include "ParamSystem/TALUX_Funcs.h"

#include <bit>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "ParamSystem/support/Locale.h"

namespace {

constexpr std::size_t kMaxText = 49;

// Clamps to the 32 bits of the interface where the C library's `long` is wider.
template <typename Target, typename Source>
Target clamped(Source value) {
    if (value > std::numeric_limits<Target>::max()) return std::numeric_limits<Target>::max();
    if (value < std::numeric_limits<Target>::min()) return std::numeric_limits<Target>::min();
    return static_cast<Target>(value);
}

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

template <int base>
VarLong toLong(const char* word, char** end) {
    return clamped<VarLong>(std::strtol(word, end, base));
}

VarULong toULong(const char* word, char** end) {
    return clamped<VarULong>(std::strtoul(word, end, 10));
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
