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
    std::string text;
    std::string set;
    bool delimitersAreTokens = false;
    std::size_t position = 0;
    std::set<std::size_t> ended; // places that became NUL

    bool delimits(std::size_t i) const {
        return ended.count(i) != 0 || set.find(text[i]) != std::string::npos;
    }
    void skip() {
        while (!delimitersAreTokens && position < text.size() && delimits(position))
            ++position;
    }
    // The next token; empty when none is left.
    std::string next() {
        skip();
        if (position == text.size()) return "";
        if (delimits(position)) return text.substr(position++, 1);
        const std::size_t start = position;
        while (position < text.size() && !delimits(position))
            ++position;
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

constexpr std::size_t kSize = 24;

struct RandomWalk {
    std::mt19937 random{4711};
    // The bytes behind the buffer show whether anybody wrote there.
    std::string memory = std::string(kSize, '\0') + "guard";
    Probe tokenizer;
    Model model;

    unsigned below(unsigned limit) { return static_cast<unsigned>(random() % limit); }
    std::string anyText(std::string_view alphabet, unsigned maxLength) {
        std::string text(below(maxLength + 1), ' ');
        for (char& c : text)
            c = alphabet[below(static_cast<unsigned>(alphabet.size()))];
        return text;
    }
    void setString() {
        std::string text = anyText("ab,; \xE4\xFF", kSize + 4);
        const std::string set = below(10) == 0 ? std::string(200, ',') : anyText(",; \xFF", 3);
        const bool tokens = below(2) == 0;
        tokenizer.SetString(text.data(), set.c_str(), tokens);
        if (!text.empty() && text.size() < kSize && set.size() < 200) model = {text, set, tokens, 0, {}};
    }
    void step() {
        switch (below(8)) {
        case 0:
            return setString();
        case 1:
            model.skip();
            ASSERT_EQ(tokenizer.hasMoreTokens(), model.position < model.text.size());
            break;
        case 2:
            model.set = anyText(",; b", 3);
            return expectToken(tokenizer.nextToken(model.set.c_str()));
        case 3:
            ASSERT_EQ(tokenizer.countTokens(), model.count());
            break;
        default:
            return expectToken(tokenizer.nextToken());
        }
    }
    void expectToken(const char* token) {
        const std::string expected = model.next();
        ASSERT_EQ(token == nullptr, expected.empty());
        ASSERT_STREQ(token == nullptr ? "" : token, expected.c_str());
    }
};

} // namespace

TEST(Tokenizer, AgreesWithTheModelOnRandomTexts) {
    RandomWalk walk;
    walk.tokenizer.SetBuffer(walk.memory.data(), kSize);
    for (int i = 0; i < 200000; ++i) {
        walk.step();
        ASSERT_FALSE(testing::Test::HasFatalFailure()) << "step " << i;
        ASSERT_EQ(walk.memory.substr(0, walk.model.text.size()), walk.model.bytes()) << "step " << i;
        ASSERT_EQ(walk.tokenizer.currentPosition, walk.model.position) << "step " << i;
        ASSERT_EQ(walk.tokenizer.maxPosition, walk.model.text.size()) << "step " << i;
    }
    EXPECT_EQ(walk.memory.substr(kSize), "guard");
}

TEST(Tokenizer, EndsTokensInPlace) {
    char buffer[8];
    char text[] = "a, b,,c";
    StringTokenizer tokenizer;
    tokenizer.SetBuffer(buffer, sizeof buffer);
    tokenizer.SetString(text, ", ", false);
    EXPECT_EQ(tokenizer.countTokens(), 3u);
    EXPECT_STREQ(tokenizer.nextToken(), "a");
    EXPECT_STREQ(tokenizer.nextToken(), "b");
    EXPECT_STREQ(tokenizer.nextToken(), "c");
    EXPECT_EQ(tokenizer.nextToken(), nullptr);
    EXPECT_EQ(std::string(buffer, 8), std::string("a\0 b\0,c\0", 8));
}

TEST(Tokenizer, TakesTheRestOfALineWithTheEmptySet) {
    char buffer[255];
    char text[] = "  load = two words, and more";
    StringTokenizer tokenizer;
    tokenizer.SetBuffer(buffer);
    tokenizer.SetString(text, " =", false);
    EXPECT_STREQ(tokenizer.nextToken(), "load");
    EXPECT_TRUE(tokenizer.hasMoreTokens());
    EXPECT_STREQ(tokenizer.nextToken(""), "two words, and more");
    EXPECT_FALSE(tokenizer.hasMoreTokens());
}

TEST(Tokenizer, RefusesWhatDoesNotFitAndKeepsTheOldString) {
    char buffer[255];
    std::string longest(254, 'x'), tooLong(255, 'x'), kept = "kept", empty;
    const std::string largestSet(199, ','), tooLargeSet(200, ',');

    Probe tokenizer;
    tokenizer.SetString(kept.data(), ",", false); // no buffer yet
    EXPECT_FALSE(tokenizer.hasMoreTokens());
    EXPECT_EQ(tokenizer.nextToken(), nullptr);
    EXPECT_EQ(tokenizer.countTokens(), 0u);

    tokenizer.SetBuffer(buffer);
    tokenizer.SetString(longest.data(), largestSet.c_str(), false);
    EXPECT_EQ(tokenizer.maxPosition, 254u);
    tokenizer.SetString(kept.data(), ",", false);
    tokenizer.SetString(tooLong.data(), ",", false);
    tokenizer.SetString(kept.data() + 1, tooLargeSet.c_str(), false);
    tokenizer.SetString(empty.data(), "e", false);
    tokenizer.SetString(nullptr, "e", false);
    EXPECT_STREQ(tokenizer.nextToken(), "kept");
}

TEST(Tokenizer, CutsASetThatIsTooLarge) {
    char buffer[255];
    char text[] = "a-b,c";
    StringTokenizer tokenizer;
    tokenizer.SetBuffer(buffer);
    tokenizer.SetString(text, "", false);
    EXPECT_STREQ(tokenizer.nextToken((std::string(198, ';') + "-,").c_str()), "a");
    EXPECT_STREQ(tokenizer.nextToken(), "b,c");
}
