#include "support/Address.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <limits>

#include "support/Text.h"

namespace talux {

namespace {

// The number that leads the next piece; moves `text` past it.
int takePiece(const char*& text) {
    text += std::strspn(text, ".");
    const long number = std::strtol(text, nullptr, 10);
    text += std::strcspn(text, ".");
    return static_cast<int>(
        std::clamp<long>(number, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

} // namespace

void normaliseAddress(char* dest, std::size_t size, const char* text) {
    char whole[kWholeAddressSize];
    char* end = whole;
    for (int piece = 0; piece < 4; ++piece) {
        if (piece > 0) *end++ = '.';
        end = std::to_chars(end, std::end(whole), takePiece(text)).ptr;
    }
    copyText(dest, size, {whole, end});
}

} // namespace talux
