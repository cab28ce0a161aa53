#include "MenuSystem/TALUX_StringTokenizer.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace {

constexpr unsigned short kUnknownSize = 65535;

// A set of delimiters with one bit for each character. NUL is in every set.
class DelimiterSet {
public:
    explicit DelimiterSet(const char* delimiters) {
        do {
            bits[wordOf(*delimiters)] |= bitOf(*delimiters);
        } while (*delimiters++ != '\0');
    }

    bool holds(char c) const { return (bits[wordOf(c)] & bitOf(c)) != 0; }

    // The first position from `position` on whose character is in the set, or is not; `end` if there is none.
    UINT find(const char* text, UINT position, UINT end, bool wanted) const {
        while (position < end && holds(text[position]) != wanted)
            ++position;
        return position;
    }

private:
    std::uint32_t bits[8] = {};

    static std::size_t wordOf(char c) { return static_cast<unsigned char>(c) / 32; }
    static std::uint32_t bitOf(char c) { return std::uint32_t{1} << static_cast<unsigned char>(c) % 32; }
};

} // namespace

StringTokenizer::StringTokenizer()
    : currentPosition(0), maxPosition(0), buffer(nullptr), delimiters{}, retTokens(false), endedBy('\0'),
      bufferSize(kUnknownSize) {}

void StringTokenizer::SetBuffer(char* buf) {
    buffer = buf;
    bufferSize = kUnknownSize;
}

void StringTokenizer::SetBuffer(char* buf, UINT size) {
    buffer = buf;
    bufferSize = static_cast<unsigned short>(size < kUnknownSize ? size : kUnknownSize - 1);
}

void StringTokenizer::SetString(char* str, const char* delim, BOOL returnTokens) {
    if (buffer == nullptr || str == nullptr || *str == '\0') return;
    const bool isTrusted = bufferSize == kUnknownSize;
    const std::size_t length = isTrusted ? std::strlen(str) : strnlen(str, bufferSize);
    const std::size_t delimiterCount = strnlen(delim, kMaxDelimiters + 1);
    if ((!isTrusted && length >= bufferSize) || delimiterCount > kMaxDelimiters) return;

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
    const DelimiterSet set(delimiters);
    if (endedBy != '\0') buffer[currentPosition] = endedBy;
    endedBy = '\0';
    if (!retTokens) currentPosition = set.find(buffer, currentPosition, maxPosition, false);
    if (currentPosition >= maxPosition) return nullptr;

    const UINT start = currentPosition;
    currentPosition = set.find(buffer, start, maxPosition, true);
    if (currentPosition == start) ++currentPosition; // a delimiter
    if (retTokens) endedBy = buffer[currentPosition];
    buffer[currentPosition] = '\0';
    return buffer + start;
}

char* StringTokenizer::nextToken(const char* delim) {
    const std::size_t length = strnlen(delim, kMaxDelimiters);
    std::memmove(delimiters, delim, length);
    delimiters[length] = '\0';
    return nextToken();
}

UINT StringTokenizer::countTokens() {
    const DelimiterSet set(delimiters);
    UINT count = 0;
    if (endedBy != '\0') buffer[currentPosition] = endedBy;
    for (UINT position = currentPosition; position < maxPosition; ++count) {
        if (!retTokens) position = set.find(buffer, position, maxPosition, false);
        if (position >= maxPosition) break;
        const UINT start = position;
        position = set.find(buffer, position, maxPosition, true);
        if (retTokens && position == start) ++position;
    }
    if (endedBy != '\0') buffer[currentPosition] = '\0';
    return count;
}

void StringTokenizer::skipDelimiters() {
    if (!retTokens)
        currentPosition = DelimiterSet(delimiters).find(buffer, currentPosition, maxPosition, false);
}
