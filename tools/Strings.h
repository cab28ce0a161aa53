// Putting texts together.
#ifndef TALUX_TOOLS_STRINGS_H
#define TALUX_TOOLS_STRINGS_H

#include <initializer_list>
#include <string>
#include <string_view>

namespace talux {

inline std::string joined(std::initializer_list<std::string_view> pieces) {
    std::string text;
    for (const std::string_view piece : pieces)
        text += piece;
    return text;
}

// `between` stands between the items.
template <class Items>
std::string list(const Items& items, std::string_view between = ", ") {
    std::string text;
    bool isFirst = true;
    for (const auto& item : items) {
        if (!isFirst) text += between;
        text += item;
        isFirst = false;
    }
    return text;
}

// The characters of `special` with a backslash in front.
inline std::string escaped(std::string_view text, std::string_view special) {
    std::string plain;
    for (const char c : text) {
        if (special.find(c) != std::string_view::npos) plain += '\\';
        plain += c;
    }
    return plain;
}

// As a text constant of C++ or Lua.
inline std::string quoted(std::string_view text) {
    return '"' + escaped(text, "\"\\") + '"';
}

} // namespace talux

#endif
