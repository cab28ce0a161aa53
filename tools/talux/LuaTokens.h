// The words of a Lua script: enough of the language to find calls and their constant arguments.
#ifndef TALUX_TOOLS_TALUX_LUATOKENS_H
#define TALUX_TOOLS_TALUX_LUATOKENS_H

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace talux::tool {

struct LuaToken {
    enum class Kind { name, number, text, sign, end };
    Kind kind = Kind::end;
    std::string text;                 // of a text constant what it stands for
    std::vector<std::uint32_t> where; // of a text constant, place of each of its characters in the script
    std::size_t at = 0;               // place in the script

    bool is(std::string_view word) const { return kind != Kind::text && text == word; }
};

// Comments are left out; the last token is of the kind `end`. What is no Lua becomes signs of one character.
std::deque<LuaToken> luaTokens(std::string_view script);

} // namespace talux::tool

#endif
