#include "ParamSystem/files/Reader.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "ParamSystem/dictionary/Lookup.h"
#include "ParamSystem/os/Files.h"
#include "support/Text.h"

namespace talux {

namespace {

// The C library's strcspn makes a table of 256 bytes at every call, which is more work than a short line.
template <class IsEnd>
char* skipTo(char* text, IsEnd isEnd) {
    while (*text != '\0' && !isEnd(*text))
        ++text;
    return text;
}

constexpr bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

constexpr bool endsKey(char c) {
    return c == ' ' || c == '=' || c == '\n';
}

constexpr bool endsToken(char c) {
    return c == '=' || c == '\n';
}

bool beginsComment(const char* text) {
    return *text == '#' || *text == ';' || (text[0] == '/' && text[1] == '/');
}

LineForm formWithoutKey(const char* text) {
    const bool nothing = *text == '\0' || *text == '\n' || *text == '\r' || *text == '[';
    return nothing || beginsComment(text) ? LineForm::nothing : LineForm::foreign;
}

Tail tailAt(const char* rest) {
    while (isBlank(*rest) || *rest == '\r' || *rest == '\n')
        ++rest;
    if (*rest == '\0') return Tail::nothing;
    return beginsComment(rest) ? Tail::comment : Tail::text;
}

// Where the value begins: after the "=" signs, which blanks may precede, or after the one blank
// that ended the key.
char* valueBehind(char* key) {
    char* value = skipTo(key, [](char c) { return c != ' '; });
    if (*value != '=' && *key != '\0') value = key + 1;
    return skipTo(value, [](char c) { return !endsToken(c); });
}

// Up to the next double quote or the end of the token.
void takeQuoted(Entry& entry, char* value) {
    char* const end = skipTo(++value, [](char c) { return c == '"' || endsToken(c); });
    entry.isQuoted = true;
    entry.isClosed = *end == '"';
    entry.tail = tailAt(entry.isClosed ? end + 1 : end);
    entry.value = value;
    *end = '\0';
}

// Up to a comment or the end of the token; blanks before a comment belong to the value.
void takeBare(Entry& entry, char* value) {
    char* end = value;
    while (*end != '\0' && *end != '\r' && !endsToken(*end) && !beginsComment(end))
        ++end;
    entry.tail = tailAt(end);
    entry.value = value;
    *end = '\0';
}

} // namespace

Entry parseEntry(char* line) {
    Entry entry;
    char* const key = skipTo(line, [](char c) { return !isBlank(c); });
    if (!startsIgnoringCase(key, kKeyPrefix)) { // reads no further than the first difference
        entry.form = formWithoutKey(key);
        return entry;
    }
    entry.form = LineForm::entry;
    entry.name = key + kKeyPrefix.size();
    char* const end = skipTo(entry.name, endsKey);
    char* const value = valueBehind(end);
    entry.hasValue = *value != '\0';
    if (*value == '"')
        takeQuoted(entry, value);
    else
        takeBare(entry, value);
    *end = '\0';
    return entry;
}

Reader::Reader(const char* filename) : descriptor(os::openToRead(filename)) {
    if (descriptor >= 0) return;
    state = ReadResult::notOpened;
    atEnd = true;
}

Reader::~Reader() {
    if (descriptor >= 0) os::closeFile(descriptor);
}

// False at the end, which stays the end, and when the file breaks.
bool Reader::fill() {
    if (atEnd) return false;
    const auto count = os::readFile(descriptor, block, sizeof block);
    atEnd = count <= 0;
    if (count < 0) state = ReadResult::broken;
    start = 0;
    end = atEnd ? 0 : static_cast<std::size_t>(count);
    return !atEnd;
}

// Up to and with the line feed, but no more than one read takes. 0 at the end.
std::size_t Reader::takeLine() {
    std::size_t length = 0;
    while (length < kMaxRead && (start < end || fill())) {
        const char* const from = block + start;
        const std::size_t room = std::min(end - start, kMaxRead - length);
        const auto* const feed = static_cast<const char*>(std::memchr(from, '\n', room));
        const std::size_t taken = feed != nullptr ? static_cast<std::size_t>(feed + 1 - from) : room;
        std::memcpy(line + length, from, taken);
        start += taken;
        length += taken;
        if (feed != nullptr) break;
    }
    line[length] = '\0';
    return length;
}

bool Reader::next(Entry& entry) {
    const std::size_t length = takeLine();
    if (length == 0 || state != ReadResult::done) return false;
    const bool isFull = line[length - 1] != '\n' && (start < end || fill());
    const bool hasNul = std::strlen(line) < length;
    entry = parseEntry(line);
    entry.line = ++lines;
    entry.continues = lastWasFull;
    entry.isCut = isFull && block[start] != '\n';
    entry.hasNul = hasNul;
    lastWasFull = isFull;
    return true;
}

} // namespace talux
