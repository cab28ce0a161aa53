// Taking a text apart at delimiters, without changing it. Runs of delimiters count as one.
#ifndef TALUX_KEPL_WORDS_H
#define TALUX_KEPL_WORDS_H

#include <algorithm>
#include <string_view>

#include "support/Text.h"

namespace talux::kepl {

constexpr std::string_view withoutLeading(std::string_view text, char delimiter) {
    while (!text.empty() && text.front() == delimiter)
        text.remove_prefix(1);
    return text;
}

// The next word; `rest` is left with what follows it, its delimiter first. Empty when there is none.
constexpr std::string_view takeWord(std::string_view& rest, char delimiter) {
    const std::string_view text = withoutLeading(rest, delimiter);
    const std::string_view word = text.substr(0, text.find(delimiter));
    rest = after(text, word.size());
    return word;
}

// The same with a set of delimiters, given by a function.
template <typename IsDelimiter>
constexpr std::string_view takeWordOf(std::string_view& rest, IsDelimiter isDelimiter) {
    const char* const start = std::find_if_not(rest.begin(), rest.end(), isDelimiter);
    const char* const end = std::find_if(start, rest.end(), isDelimiter);
    rest = {end, rest.end()};
    return {start, end};
}

} // namespace talux::kepl

#endif
