// Putting texts together and taking them apart.
#ifndef TALUX_TOOLS_STRINGS_H
#define TALUX_TOOLS_STRINGS_H

#include <algorithm>
#include <charconv>
#include <cstdarg>
#include <cstdio>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace talux {

inline std::string joined(std::initializer_list<std::string_view> pieces) {
    std::string text;
    for (const std::string_view piece : pieces)
        text += piece;
    return text;
}

// What `print` makes of the items, with `between` between them.
template <class Items, class Print = std::identity>
std::string list(const Items& items, std::string_view between = ", ", Print print = {}) {
    std::string text;
    bool isFirst = true;
    for (const auto& item : items) {
        if (!isFirst) text += between;
        text += print(item);
        isFirst = false;
    }
    return text;
}

// Puts the pieces into the gaps "{}" of the pattern, one after the other.
inline std::string fill(std::string_view pattern, std::initializer_list<std::string_view> pieces) {
    std::string text;
    const auto* piece = pieces.begin();
    for (std::size_t gap = pattern.find("{}"); gap != pattern.npos && piece != pieces.end();
         gap = pattern.find("{}")) {
        text.append(pattern.substr(0, gap)).append(*piece++);
        pattern.remove_prefix(gap + 2);
    }
    return text.append(pattern);
}

// As printf prints it, at most 511 characters.
[[gnu::format(printf, 1, 2)]] inline std::string formatted(const char* format, ...) {
    char text[512];
    std::va_list values;
    va_start(values, format);
    std::vsnprintf(text, sizeof text, format, values);
    va_end(values);
    return text;
}

// Whether one of them is the item.
bool isOneOf(const auto& all, const auto& item) {
    return std::ranges::find(all, item) != std::ranges::end(all);
}

// A number that is all of the text.
template <class Number>
std::optional<Number> numberOf(std::string_view text) {
    Number number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isAll = read.ec == std::errc() && read.ptr == text.data() + text.size();
    return isAll ? std::optional(number) : std::nullopt;
}
inline std::optional<long> wholeNumber(std::string_view text) {
    return numberOf<long>(text);
}

// The text with a backslash before each character of `special`.
inline std::string escaped(std::string_view text, std::string_view special) {
    std::string plain;
    for (const char c : text) {
        if (special.find(c) != std::string_view::npos) plain += '\\';
        plain += c;
    }
    return plain;
}

// As the text of a page in HTML or SVG.
inline std::string inMarkup(std::string_view text) {
    constexpr std::string_view kSpecial = "&<>\"", kEntities[] = {"&amp;", "&lt;", "&gt;", "&quot;"};
    std::string markup;
    for (const char& c : text) {
        const std::size_t special = kSpecial.find(c);
        markup += special == kSpecial.npos ? std::string_view(&c, 1) : kEntities[special];
    }
    return markup;
}

// As a text constant of C++ or Lua.
inline std::string quoted(std::string_view text) {
    return '"' + escaped(text, "\"\\") + '"';
}

} // namespace talux

#endif
