// The tokenizer against a model that never writes into its text.
#include "MenuSystem/TALUX_StringTokenizer.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>

namespace {

struct Probe : StringTokenizer {
    using StringTokenizer::currentPosition;
    using StringTokenizer::maxPosition;
};

// What the tokenizer must answer, found without writing into the text.
struct Model {
    std::string text, set;
    bool delimitersAreTokens = false;
    std::size_t position = 0;
    std::set<std::size_t> ended = {}; // places that became NUL; of delimiters as tokens the last one only

    bool delimits(std::size_t i) const { return ended.contains(i) || set.find(text[i]) < set.size(); }
    void move(bool delimiters) {
        while (position < text.size() && delimits(position) == delimiters)
            ++position;
    }
    void skip() {
        if (!delimitersAreTokens) move(true);
    }
    // The next token; empty when none is left.
    std::string next() {
        if (delimitersAreTokens) ended.clear();
        skip();
        if (position == text.size()) return "";
        const std::size_t start = position;
        move(false);
        position += position == start; // a delimiter
        ended.insert(position);
        return text.substr(start, position - start);
    }
    unsigned count() const {
        Model rest = *this;
        unsigned tokens = 0;
        while (!rest.next().empty())
            ++tokens;
        return tokens;
    }
    std::string bytes() const {
        std::string result = text;
        for (const std::size_t i : ended)
            if (i < result.size()) result[i] = '\0';
        return result;
    }
};

constexpr UINT kSize = 24;

struct Tokenizer : testing::Test {
    std::mt19937 random{4711};
    // The bytes after the given size show whether anything was written there; a trusted caller has them, too.
    std::string memory = std::string(kSize, '\0') + std::string(400, '!');
    std::size_t room = 0; // for a text with its NUL; none as long as there is no buffer
    Probe tokenizer;
    Model model;

    unsigned below(std::size_t limit) { return static_cast<unsigned>(random() % limit); }
    std::string anyText(std::string_view alphabet, std::size_t longest) {
        std::string text(below(longest + 1), ' ');
        for (char& c : text)
            c = alphabet[below(alphabet.size())];
        return text;
    }
    std::string anySet() {
        return below(10) == 0 ? std::string(190 + below(20), ';') + ',' : anyText(",; b\xFF", 3);
    }

    void setString() {
        std::string text = anyText("ab,; \xE4\xFF", below(5) == 0 ? 300 : kSize + 4);
        const std::string set = anySet();
        const bool areTokens = below(2) == 0, isNull = below(9) == 0;
        tokenizer.SetString(isNull ? nullptr : text.data(), set.c_str(), areTokens);
        if (!isNull && !text.empty() && text.size() < room && set.size() < 200)
            model = {text, set, areTokens};
    }
    void expectToken(const char* token) {
        const std::string expected = model.next();
        ASSERT_EQ(token == nullptr, expected.empty());
        if (token == nullptr) return;
        ASSERT_EQ(token, memory.data() + model.position - expected.size());
        ASSERT_EQ(token, expected);
    }
    void step() {
        switch (below(8)) {
        case 0:
            return setString();
        case 1:
            model.skip();
            ASSERT_EQ(tokenizer.hasMoreTokens(), model.position < model.text.size());
            break;
        case 2: {
            const std::string set = anySet();
            model.set = set.substr(0, 199);
            return expectToken(tokenizer.nextToken(set.c_str()));
        }
        case 3:
            ASSERT_EQ(tokenizer.countTokens(), model.count());
            break;
        default:
            return expectToken(tokenizer.nextToken());
        }
    }
    void walk(int steps) {
        for (int i = 0; i < steps && !HasFatalFailure(); ++i) {
            step();
            ASSERT_EQ(memory.substr(0, model.text.size()), model.bytes()) << "step " << i;
            ASSERT_EQ(tokenizer.currentPosition, model.position) << "step " << i;
            ASSERT_EQ(tokenizer.maxPosition, model.text.size()) << "step " << i;
        }
    }
};

} // namespace

TEST_F(Tokenizer, AgreesWithTheModel) {
    walk(100); // without a buffer nothing is accepted
    room = kSize;
    tokenizer.SetBuffer(memory.data(), kSize);
    walk(100000);
    EXPECT_EQ(memory.find_first_not_of('!', kSize), std::string::npos);
    tokenizer.SetBuffer(memory.data());
    room = memory.size();
    walk(100000);
    tokenizer.SetBuffer(memory.data(), 65536);
    walk(100);
}
