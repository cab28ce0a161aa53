// Taking a text apart at delimiters, without changing it. Runs of delimiters count as one.
#ifndef TALUX_KEPL_WORDS_H
#define TALUX_KEPL_WORDS_H

#include <string_view>

#include "support/Text.h"

namespace talux::kepl {

constexpr std::string_view withoutLeading(std::string_view text, char delimiter) {
    while (!text.empty() && text.front() == delimiter)
        text.remove_prefix(1);
    return text;
}

// The next word; empty when there is none. `rest` becomes what follows it, beginning with its delimiter.
constexpr std::string_view takeWord(std::string_view& rest, char delimiter) {
    const std::string_view text = withoutLeading(rest, delimiter);
    const std::string_view word = text.substr(0, text.find(delimiter));
    rest = after(text, word.size());
    return word;
}

// What precedes the first character for which isEnd is true, or everything. `rest` becomes what follows.
template <typename IsEnd>
constexpr std::string_view takeUntil(std::string_view& rest, IsEnd isEnd) {
    std::size_t length = 0;
    while (length < rest.size() && !isEnd(rest[length]))
        ++length;
    const std::string_view taken(rest.data(), length);
    rest = after(rest, length);
    return taken;
}

} // namespace talux::kepl

#endif
