// Expected messages of death tests, in which every character is literal.
#ifndef TALUX_TEST_MESSAGES_H
#define TALUX_TEST_MESSAGES_H

#include "tools/Strings.h"

#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

namespace talux_test {

// A message that begins with the text.
inline auto startingWith(const std::string& text) {
    return testing::ContainsRegex("^" + talux::escaped(text, "\\^$.|?*+()[{"));
}

// The call ends the process with status 2 and this text on both streams together.
template <typename Call>
void expectEnd(const Call& call, const std::string& text) {
    EXPECT_EXIT((dup2(STDERR_FILENO, STDOUT_FILENO), call()), testing::ExitedWithCode(2), testing::Eq(text));
}

} // namespace talux_test

#endif
