#include "ParamSystem/support/Address.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "ParamSystem/support/Text.h"

namespace talux {

namespace {

// The number that leads the next piece; moves `text` behind it.
int takePiece(const char*& text) {
    text += std::strspn(text, ".");
    const long number = std::strtol(text, nullptr, 10);
    text += std::strcspn(text, ".");
    return static_cast<int>(
        std::clamp<long>(number, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

} // namespace

void normaliseAddress(char* dest, std::size_t size, const char* text) {
    int pieces[4];
    for (int& piece : pieces)
        piece = takePiece(text);
    formatText(dest, size, "%d.%d.%d.%d", pieces[0], pieces[1], pieces[2], pieces[3]);
}

} // namespace talux
