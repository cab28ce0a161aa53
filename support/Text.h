// Small text helpers: bounded copies, ASCII case, formatting in the C locale.
#ifndef TALUX_SUPPORT_TEXT_H
#define TALUX_SUPPORT_TEXT_H

#include <cstdarg>
#include <cstddef>
#include <string_view>

namespace talux {

// Copies at most size - 1 characters of `text` and a NUL.
void copyText(char* dest, std::size_t size, std::string_view text);

template <std::size_t N>
void copyText(char (&dest)[N], std::string_view text) {
    copyText(dest, N, text);
}

// What follows the first `length` characters, which must exist. substr() would need the C++ library, which
// throws if they do not.
constexpr std::string_view after(std::string_view text, std::size_t length) {
    text.remove_prefix(length);
    return text;
}

constexpr char lowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// Letter case ignored (ASCII only, in every locale).
constexpr bool equalIgnoringCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (a[i] != b[i] && lowerAscii(a[i]) != lowerAscii(b[i])) return false;
    return true;
}

constexpr bool startsIgnoringCase(std::string_view text, std::string_view prefix) {
    return text.size() >= prefix.size() && equalIgnoringCase(text.substr(0, prefix.size()), prefix);
}

// snprintf in the C locale: same result, same cut at `size`, always ends in a NUL.
[[gnu::format(printf, 3, 4)]] int formatText(char* dest, std::size_t size, const char* format, ...);
int formatTextV(char* dest, std::size_t size, const char* format, std::va_list arguments);

} // namespace talux

#endif
