#include "tools/talux/LuaTokens.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "tools/Strings.h"

namespace talux::tool {

namespace {

constexpr std::string_view kBlanks = " \t\r\n\v\f", kDigits = "0123456789",
                           kNumber = ".0123456789_abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ",
                           kName = kNumber.substr(1);

struct Lexer {
    const std::string_view script;
    std::size_t position = 0;

    std::deque<LuaToken> run() {
        std::deque<LuaToken> tokens;
        if (script.starts_with('#')) skipTo(script.find('\n'));
        while (skipBlanksAndComments())
            tokens.push_back(next());
        tokens.push_back({LuaToken::Form::end, script.size(), {}, {}});
        return tokens;
    }

    std::string_view rest() const { return script.substr(position); }

    void skipTo(std::size_t end) { position = std::min(end, script.size()); }

    // What ends the long bracket that begins here; empty where none does.
    std::string endOfBracket() const {
        if (!rest().starts_with('[')) return {};
        const std::size_t second = rest().find_first_not_of('=', 1);
        const bool isBracket = second != script.npos && rest()[second] == '[';
        return isBracket ? "]" + std::string(second - 1, '=') + "]" : "";
    }

    // False at the end.
    bool skipBlanksAndComments() {
        for (;;) {
            skipTo(script.find_first_not_of(kBlanks, position));
            if (!rest().starts_with("--")) return position < script.size();
            position += 2;
            if (const std::string end = endOfBracket(); !end.empty())
                takeText(end, false);
            else
                skipTo(script.find('\n', position));
        }
    }

    LuaToken next() {
        if (const std::string end = endOfBracket(); !end.empty()) return takeText(end, false);
        const std::size_t start = position;
        const std::string_view first = rest().substr(0, 1);
        if (first == "\"" || first == "'") return takeText(first, true);
        auto form = LuaToken::Form::sign;
        if (isOneOf(kDigits, rest()[rest().size() > 1 && first == "." ? 1 : 0])) {
            form = LuaToken::Form::number;
            skipTo(script.find_first_not_of(kNumber, position));
        } else if (isOneOf(kName, first[0])) {
            form = LuaToken::Form::name;
            skipTo(script.find_first_not_of(kName, position));
        } else {
            position += rest().starts_with("...") ? 3 : rest().starts_with("..") ? 2 : 1;
        }
        return {form, start, std::string(script.substr(start, position - start)), {}};
    }

    // In quotes there are escapes, and the line ends the text.
    LuaToken takeText(std::string_view end, bool isQuoted) {
        LuaToken token{LuaToken::Form::text, position, {}, {}};
        position += end.size();
        if (!isQuoted && rest().starts_with('\n')) ++position;
        while (!rest().empty() && !rest().starts_with(end) && !(isQuoted && rest().starts_with('\n'))) {
            const std::size_t start = position++;
            const char c = script[start];
            const auto meant = isQuoted && c == '\\' ? takeEscape() : std::optional(c);
            if (!meant) continue;
            token.text += *meant;
            token.where.push_back(static_cast<std::uint32_t>(start));
        }
        if (rest().starts_with(end)) position += end.size();
        return token;
    }

    // What follows a backslash; nothing of what means no character.
    std::optional<char> takeEscape() {
        constexpr std::string_view kLetters = "abfnrtv", kMeanings = "\a\b\f\n\r\t\v";
        if (rest().empty()) return {};
        const char letter = script[position];
        if (isOneOf(kDigits, letter)) return takeCode(3, 10);
        ++position;
        if (letter == 'x') return takeCode(2, 16);
        if (letter == 'z') return skipTo(script.find_first_not_of(kBlanks, position)), std::nullopt;
        const std::size_t known = kLetters.find(letter);
        return known == kLetters.npos ? letter : kMeanings[known];
    }

    char takeCode(std::size_t digits, int base) {
        int code = 0;
        const std::string_view text = rest().substr(0, digits);
        const auto read = std::from_chars(text.data(), text.data() + text.size(), code, base);
        position += static_cast<std::size_t>(read.ptr - text.data());
        return static_cast<char>(code);
    }
};

} // namespace

std::deque<LuaToken> luaTokens(std::string_view script) {
    return Lexer{script}.run();
}

} // namespace talux::tool
