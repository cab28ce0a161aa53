#include "tools/talux/LuaTokens.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>

namespace talux::tool {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

class Lexer {
public:
    explicit Lexer(std::string_view text) : script(text) {}

    std::deque<LuaToken> run() {
        if (script.starts_with('#')) place = std::min(script.find('\n'), script.size());
        while (skipBlanksAndComments())
            tokens.push_back(next());
        LuaToken end;
        end.at = script.size();
        tokens.push_back(end);
        return std::move(tokens);
    }

private:
    const std::string_view script;
    std::size_t place = 0;
    std::deque<LuaToken> tokens;

    char at(std::size_t offset = 0) const {
        return place + offset < script.size() ? script[place + offset] : '\0';
    }

    // Level of a long bracket that begins here, -1 when none does.
    int longBracket() const {
        if (at() != '[') return -1;
        std::size_t k = 1;
        while (at(k) == '=')
            ++k;
        return at(k) == '[' ? static_cast<int>(k) - 1 : -1;
    }

    // False at the end.
    bool skipBlanksAndComments() {
        for (;;) {
            while (place < script.size() && std::isspace(static_cast<unsigned char>(script[place])) != 0)
                ++place;
            if (!script.substr(place).starts_with("--")) return place < script.size();
            place += 2;
            if (const int level = longBracket(); level >= 0)
                takeLong(level);
            else
                place = std::min(script.find('\n', place), script.size());
        }
    }

    LuaToken next() {
        LuaToken token;
        token.at = place;
        if (const int level = longBracket(); level >= 0) {
            token = takeLong(level);
        } else if (at() == '"' || at() == '\'') {
            token = takeQuoted();
        } else if (isLetter(at())) {
            token.kind = LuaToken::Kind::name;
            token.text = takeWhile([](char c) { return isLetter(c) || isDigit(c); });
        } else if (isDigit(at()) || (at() == '.' && isDigit(at(1)))) {
            token.kind = LuaToken::Kind::number;
            token.text = takeWhile([](char c) { return isLetter(c) || isDigit(c) || c == '.'; });
        } else {
            token.kind = LuaToken::Kind::sign;
            const bool isDots = script.substr(place).starts_with("..");
            token.text = script.substr(place, script.substr(place).starts_with("...") ? 3 : isDots ? 2 : 1);
            place += token.text.size();
        }
        return token;
    }

    template <class Belongs>
    std::string takeWhile(Belongs belongs) {
        const std::size_t start = place;
        while (place < script.size() && belongs(script[place]))
            ++place;
        return std::string(script.substr(start, place - start));
    }

    static void append(LuaToken& token, char c, std::size_t where) {
        token.text += c;
        token.where.push_back(static_cast<std::uint32_t>(where));
    }

    LuaToken takeLong(int level) {
        LuaToken token;
        token.kind = LuaToken::Kind::text;
        token.at = place;
        const std::string close = "]" + std::string(static_cast<std::size_t>(level), '=') + "]";
        place += close.size();
        if (at() == '\n') ++place; // belongs to the bracket
        const std::size_t end = std::min(script.find(close, place), script.size());
        for (; place < end; ++place)
            append(token, script[place], place);
        place = std::min(end + close.size(), script.size());
        return token;
    }

    LuaToken takeQuoted() {
        LuaToken token;
        token.kind = LuaToken::Kind::text;
        token.at = place;
        const char quote = script[place++];
        while (place < script.size() && at() != quote && at() != '\n') {
            if (at() == '\\')
                takeEscape(token);
            else
                append(token, script[place], place), ++place;
        }
        if (at() == quote) ++place;
        return token;
    }

    void takeEscape(LuaToken& token) {
        constexpr std::string_view kLetters = "abfnrtv", kMeanings = "\a\b\f\n\r\t\v";
        const std::size_t start = place++;
        const char letter = at();
        if (letter == 'z') {
            ++place;
            while (std::isspace(static_cast<unsigned char>(at())) != 0)
                ++place;
        } else if (letter == 'x') {
            append(
                token,
                static_cast<char>(std::strtol(std::string(script.substr(place + 1, 2)).c_str(), nullptr, 16)),
                start);
            place = std::min(place + 3, script.size());
        } else if (isDigit(letter)) {
            std::size_t digits = 0;
            int code = 0;
            while (digits < 3 && isDigit(at(digits)))
                code = code * 10 + (at(digits++) - '0');
            append(token, static_cast<char>(code), start);
            place += digits;
        } else if (place < script.size()) {
            const auto known = kLetters.find(letter);
            append(token, known == kLetters.npos ? letter : kMeanings[known], start);
            ++place;
        }
    }
};

} // namespace

std::deque<LuaToken> luaTokens(std::string_view script) {
    return Lexer(script).run();
}

} // namespace talux::tool
