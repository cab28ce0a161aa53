#include "ParamSystem/files/Reader.h"

#include <algorithm>
#include <cstring>

#include "ParamSystem/dictionary/Lookup.h"
#include "ParamSystem/os/Files.h"
#include "support/Text.h"

namespace talux {

namespace {

constexpr auto isSpace = [](char c) { return c == ' '; };
constexpr auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
constexpr auto isSign = [](char c) { return c == '='; };

template <class Is>
std::string_view without(std::string_view text, Is leading) {
    while (!text.empty() && leading(text[0]))
        text.remove_prefix(1);
    return text;
}

// Removes and returns the part before the first character at which `ends` is true.
template <class Ends>
std::string_view take(std::string_view& text, Ends ends) {
    const std::string_view whole = text;
    while (!text.empty() && !ends(text))
        text.remove_prefix(1);
    return whole.substr(0, whole.size() - text.size());
}

bool beginsComment(std::string_view text) {
    return text.starts_with('#') || text.starts_with(';') || text.starts_with("//");
}

LineForm formWithoutKey(std::string_view text) {
    const bool nothing = text.empty() || text[0] == '\r' || text[0] == '[';
    return nothing || beginsComment(text) ? LineForm::nothing : LineForm::foreign;
}

Tail tailIn(std::string_view rest) {
    rest = without(rest, [](char c) { return isBlank(c) || c == '\r'; });
    if (rest.empty()) return Tail::nothing;
    return beginsComment(rest) ? Tail::comment : Tail::text;
}

// What follows the key: after the "=" signs, which spaces may precede, or after the one character that ended
// it.
std::string_view valueAfterKey(std::string_view rest) {
    const std::string_view signs = without(rest, isSpace);
    return without(signs.starts_with('=') || rest.empty() ? signs : after(rest, 1), isSign);
}

void takeQuoted(Entry& entry, std::string_view text) {
    entry.value = take(text, [](std::string_view rest) { return rest[0] == '"' || isSign(rest[0]); });
    entry.isQuoted = true;
    entry.isClosed = text.starts_with('"');
    entry.tail = tailIn(after(text, entry.isClosed));
}

// Blanks before a comment belong to the value.
void takeBare(Entry& entry, std::string_view text) {
    entry.value = take(text, [](std::string_view rest) {
        return isSign(rest[0]) || rest[0] == '\r' || rest[0] == '#' || rest[0] == ';' ||
               rest.starts_with("//");
    });
    entry.tail = tailIn(text);
}

} // namespace

Entry parseEntry(std::string_view line) {
    Entry entry;
    if (line.ends_with('\n')) line.remove_suffix(1);
    const std::string_view text = without(line, isBlank);
    if (!startsIgnoringCase(text, kKeyPrefix)) {
        entry.form = formWithoutKey(text);
        return entry;
    }
    entry.form = LineForm::entry;
    const std::string_view key = after(text, kKeyPrefix.size());
    const std::size_t length = std::min({key.find(' '), key.find('='), key.size()});
    const std::string_view value = valueAfterKey(after(key, length));
    entry.name = {key.data(), length};
    entry.hasValue = !value.empty();
    if (value.starts_with('"'))
        takeQuoted(entry, after(value, 1));
    else
        takeBare(entry, value);
    return entry;
}

Reader::Reader(const char* filename) : descriptor(os::openToRead(filename)) {
    if (descriptor >= 0) return;
    error = os::failed(os::Stage::open, "fopen");
    atEnd = true;
}

Reader::~Reader() {
    if (descriptor >= 0) os::closeFile(descriptor);
}

// Reads more of the file after what has not been returned yet. False at the end, from then on always, and
// after an error.
bool Reader::fill() {
    if (atEnd) return false;
    end -= start;
    std::memmove(block, block + start, end);
    start = 0;
    const auto count = os::readFile(descriptor, block + end, sizeof block - end);
    atEnd = count <= 0;
    if (count < 0) error = os::failed(os::Stage::use, "read");
    if (atEnd) return false;
    hasNuls = hasNuls || std::memchr(block + end, '\0', static_cast<std::size_t>(count)) != nullptr;
    end += static_cast<std::size_t>(count);
    return true;
}

// The next line with its line feed, at most kMaxRead characters; empty at the end. If the line is longer, its
// next character is in the block as well.
std::string_view Reader::takeLine() {
    static_assert(sizeof block > kMaxRead);
    for (;;) {
        const std::size_t size = std::min(end - start, kMaxRead);
        const auto* const feed = static_cast<const char*>(std::memchr(block + start, '\n', size));
        if (feed == nullptr && end - start <= kMaxRead && fill()) continue;
        const char* const first = block + start; // where fill() has moved it
        const std::size_t length = feed != nullptr ? static_cast<std::size_t>(feed + 1 - first) : size;
        start += length;
        return {first, length};
    }
}

bool Reader::next() {
    line = takeLine();
    if (line.empty() || error) return false;
    ++lines;
    wasFull = isFull;
    isFull = line.back() != '\n' && start < end;
    return true;
}

Entry Reader::entry() const {
    const std::size_t nul = hasNuls ? line.find('\0') : line.npos;
    Entry entry = parseEntry(line.substr(0, nul));
    entry.line = lines;
    entry.continues = wasFull;
    entry.isCut = isFull && block[start] != '\n';
    entry.hasNul = nul != line.npos;
    return entry;
}

} // namespace talux
