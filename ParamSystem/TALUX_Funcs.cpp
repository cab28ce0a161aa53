#include "ParamSystem/TALUX_Funcs.h"

#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "support/Parse.h"

namespace {

// As much of a text as it takes to see whether it is too long.
std::string_view beginningOf(const char* text) {
    return {text, strnlen(text, talux::kMaxNumberText + 1)};
}

constexpr std::uint32_t kOddBits = 0x55555555; // bits 0, 2, .. 30

} // namespace

int MakeLong(const char* pValStr, VarLong* pVal) {
    return talux::parseLong(beginningOf(pValStr), pVal);
}

int MakeLongFromHex(const char* pValStr, VarLong* pVal) {
    return talux::parseHexLong(beginningOf(pValStr), pVal);
}

int MakeULong(const char* pValStr, VarULong* pVal) {
    return talux::parseULong(beginningOf(pValStr), pVal);
}

int MakeDouble(const char* pValStr, double* pVal) {
    return talux::parseDouble(beginningOf(pValStr), pVal);
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
