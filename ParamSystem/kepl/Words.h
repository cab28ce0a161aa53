// Taking a text apart at delimiters, without changing it. Runs of delimiters count as one.
#ifndef TALUX_KEPL_WORDS_H
#define TALUX_KEPL_WORDS_H

#include <string_view>

namespace talux::kepl {

constexpr std::string_view withoutLeading(std::string_view text, std::string_view delimiters) {
    std::size_t length = 0;
    while (length < text.size() && delimiters.find(text[length]) != std::string_view::npos)
        ++length;
    return text.substr(length);
}

// The next word; `rest` is left with what follows it, its delimiter first. Empty when there is none.
constexpr std::string_view takeWord(std::string_view& rest, std::string_view delimiters) {
    const std::string_view text = withoutLeading(rest, delimiters);
    std::size_t length = 0;
    while (length < text.size() && delimiters.find(text[length]) == std::string_view::npos)
        ++length;
    rest = text.substr(length);
    return text.substr(0, length);
}

} // namespace talux::kepl

#endif
