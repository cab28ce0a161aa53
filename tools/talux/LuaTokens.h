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
    enum class Form { name, number, text, sign, end };
    Form form;
    std::size_t at;                   // position in the script
    std::string text;                 // of a text constant the characters that it means
    std::vector<std::uint32_t> where; // the position of each of these

    bool isName() const { return form == Form::name; }
    bool isText() const { return form == Form::text; }
    bool is(std::string_view word) const { return !isText() && text == word; }
};

// Comments are left out; the last token is the end. What is no Lua becomes signs of one character.
std::deque<LuaToken> luaTokens(std::string_view script);

} // namespace talux::tool

#endif
