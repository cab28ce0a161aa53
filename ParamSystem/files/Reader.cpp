#include "ParamSystem/files/Reader.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "ParamSystem/dictionary/Lookup.h"
#include "ParamSystem/os/Files.h"
#include "support/Text.h"

namespace talux {

namespace {

// Characters with codes below 64, as the bits of a number.
class CharacterSet {
public:
    consteval CharacterSet(std::string_view characters) {
        for (const char c : characters)
            bits |= std::uint64_t{1} << c;
    }
    constexpr bool holds(char c) const {
        const auto code = static_cast<unsigned char>(c);
        return code < 64 && (bits >> code & 1) != 0;
    }

private:
    std::uint64_t bits = 0;
};

constexpr CharacterSet kSpace(" "), kBlank(" \t"), kIgnored(" \t\r"), kSign("="), kEndsQuoted("\"="),
    kMayEndBare("=\r#;/");

std::string_view without(CharacterSet leading, std::string_view text) {
    const char* place = text.data();
    const char* const end = place + text.size();
    while (place != end && leading.holds(*place))
        ++place;
    return {place, end};
}

// The text up to the first character of a set, from `start` on.
std::size_t lengthUpTo(CharacterSet set, std::string_view text, std::size_t start = 0) {
    while (start < text.size() && !set.holds(text[start]))
        ++start;
    return start;
}

bool beginsComment(std::string_view text) {
    return text.starts_with('#') || text.starts_with(';') || text.starts_with("//");
}

LineForm formWithoutKey(std::string_view text) {
    const bool nothing = text.empty() || text[0] == '\r' || text[0] == '[';
    return nothing || beginsComment(text) ? LineForm::nothing : LineForm::foreign;
}

Tail tailIn(std::string_view rest) {
    rest = without(kIgnored, rest);
    if (rest.empty()) return Tail::nothing;
    return beginsComment(rest) ? Tail::comment : Tail::text;
}

// What follows the key: after the "=" signs, which spaces may precede, or after the one character that ended
// it.
std::string_view valueAfterKey(std::string_view rest) {
    const std::string_view signs = without(kSpace, rest);
    return without(kSign, signs.starts_with('=') || rest.empty() ? signs : after(rest, 1));
}

void takeQuoted(Entry& entry, std::string_view text) {
    const std::size_t length = lengthUpTo(kEndsQuoted, text);
    entry.isQuoted = true;
    entry.isClosed = length < text.size() && text[length] == '"';
    entry.value = text.substr(0, length);
    entry.tail = tailIn(after(text, length + entry.isClosed));
}

// Blanks before a comment belong to the value.
void takeBare(Entry& entry, std::string_view text) {
    std::size_t length = lengthUpTo(kMayEndBare, text);
    while (length < text.size() && text[length] == '/' && !beginsComment(after(text, length)))
        length = lengthUpTo(kMayEndBare, text, length + 1);
    entry.value = text.substr(0, length);
    entry.tail = tailIn(after(text, length));
}

} // namespace

Entry parseEntry(std::string_view line) {
    Entry entry;
    if (line.ends_with('\n')) line.remove_suffix(1);
    const std::string_view text = without(kBlank, line);
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

// More of the file after what is not yet returned. False at the end, which remains the end, and after an
// error.
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

// Including the line feed, but not more than kMaxRead characters. Empty at the end. Of a longer line the next
// character is in the block as well.
std::string_view Reader::takeLine() {
    static_assert(sizeof block > kMaxRead);
    for (;;) {
        const char* const line = block + start;
        const std::size_t size = std::min(end - start, kMaxRead);
        const auto* const feed = static_cast<const char*>(std::memchr(line, '\n', size));
        if (feed == nullptr && end - start <= kMaxRead && fill()) continue;
        const std::size_t length = feed != nullptr ? static_cast<std::size_t>(feed + 1 - line) : size;
        start += length;
        return {line, length};
    }
}

bool Reader::next(Entry& entry) {
    const std::string_view line = takeLine();
    if (line.empty() || error) return false;
    const bool isFull = line.back() != '\n' && start < end;
    const std::size_t nul = hasNuls ? line.find('\0') : line.npos;
    entry = parseEntry(line.substr(0, nul));
    entry.line = ++lines;
    entry.continues = lastWasFull;
    entry.isCut = isFull && block[start] != '\n';
    entry.hasNul = nul != line.npos;
    lastWasFull = isFull;
    return true;
}

} // namespace talux
