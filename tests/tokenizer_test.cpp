#include "MenuSystem/TALUX_StringTokenizer.h"

#include <gtest/gtest.h>

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
