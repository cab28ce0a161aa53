#include "MenuSystem/TALUX_StringTokenizer.h"

#include <array>
#include <cstddef>
#include <cstring>

namespace {

// Texts of one character each, for delimiters that are tokens: ending them in place would destroy the
// character behind them.
constinit auto oneCharacterTexts = [] {
    std::array<std::array<char, 2>, 256> texts{};
    for (std::size_t c = 0; c < texts.size(); ++c)
        texts[c][0] = static_cast<char>(c);
    return texts;
}();

} // namespace

StringTokenizer::StringTokenizer()
    : currentPosition(0), maxPosition(0), buffer(nullptr), delimiters{}, retTokens(false), endedBy('\0'),
      bufferSize(kDefaultBufferSize) {}

void StringTokenizer::SetBuffer(char* buf) {
    SetBuffer(buf, kDefaultBufferSize);
}

void StringTokenizer::SetBuffer(char* buf, UINT size) {
    buffer = buf;
    bufferSize = static_cast<unsigned short>(size < 65535 ? size : 65535);
}

void StringTokenizer::SetString(char* str, const char* delim, BOOL returnTokens) {
    if (buffer == nullptr || str == nullptr || *str == '\0') return;
    const std::size_t length = strnlen(str, bufferSize);
    const std::size_t delimiterCount = strnlen(delim, kMaxDelimiters + 1);
    if (length >= bufferSize || delimiterCount > kMaxDelimiters) return;

    currentPosition = 0;
    maxPosition = static_cast<UINT>(length);
    std::memmove(buffer, str, length + 1);
    std::memcpy(delimiters, delim, delimiterCount + 1);
    retTokens = returnTokens;
    endedBy = '\0';
}

BOOL StringTokenizer::hasMoreTokens() {
    skipDelimiters();
    return currentPosition < maxPosition;
}

char* StringTokenizer::nextToken() {
    skipDelimiters();
    if (currentPosition >= maxPosition) return nullptr;
    if (retTokens && isDelimiter(buffer[currentPosition])) return takeDelimiter();

    char* const token = buffer + currentPosition;
    while (currentPosition < maxPosition && !isDelimiter(buffer[currentPosition]))
        ++currentPosition;
    endedBy = buffer[currentPosition];
    buffer[currentPosition] = '\0';
    return token;
}

char* StringTokenizer::nextToken(const char* delim) {
    const std::size_t length = strnlen(delim, kMaxDelimiters);
    std::memmove(delimiters, delim, length);
    delimiters[length] = '\0';
    return nextToken();
}

UINT StringTokenizer::countTokens() {
    UINT count = 0;
    for (UINT position = currentPosition; position < maxPosition; ++count) {
        while (!retTokens && position < maxPosition && isDelimiter(buffer[position]))
            ++position;
        if (position >= maxPosition) break;
        const UINT start = position;
        while (position < maxPosition && !isDelimiter(buffer[position]))
            ++position;
        if (retTokens && position == start) ++position;
    }
    return count;
}

bool StringTokenizer::isDelimiter(char c) const {
    return c == '\0' || std::strchr(delimiters, c) != nullptr;
}

void StringTokenizer::skipDelimiters() {
    while (!retTokens && currentPosition < maxPosition && isDelimiter(buffer[currentPosition]))
        ++currentPosition;
}

char* StringTokenizer::takeDelimiter() {
    const char delimiter = buffer[currentPosition] == '\0' ? endedBy : buffer[currentPosition];
    ++currentPosition;
    return oneCharacterTexts[static_cast<unsigned char>(delimiter)].data();
}
