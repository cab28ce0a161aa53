// Expected messages of death tests, in which every character is literal.
#ifndef TALUX_TEST_MESSAGES_H
#define TALUX_TEST_MESSAGES_H

#include <gtest/gtest.h>
#include <string>

namespace talux_test {

// A message that begins with the text.
inline auto startingWith(const std::string& text) {
    std::string expression = "^";
    for (const char each : text) {
        if (std::string("\\^$.|?*+()[{").find(each) != std::string::npos) expression += '\\';
        expression += each;
    }
    return testing::ContainsRegex(expression);
}

} // namespace talux_test

#endif
