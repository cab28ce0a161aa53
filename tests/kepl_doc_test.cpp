// The examples of the language in the documentation are true.
#include "KeplLine.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

using namespace talux_test;
using KeplDocumentation = KeplTest;

// Examples show the language, not the machine's network.
extern "C" int system(const char*) {
    return 0;
}

// What a user sees of a line, its terminator being a newline, without newlines at the end.
static std::string show(KEPL_Interpreter& interpreter, const std::string& line, int uid) {
    const Outcome outcome = evaluate(interpreter, line, uid);
    std::string text = output + (outcome.result == kLineError ? outcome.error : outcome.answer);
    std::ranges::replace(text, '#', '\n');
    return text.substr(0, text.find_last_not_of('\n') + 1);
}

// Carries out the blocks of one page; gives the number of examples.
static int follow(KEPL_Interpreter& interpreter, std::istream& page) {
    const std::string prompt = "kepl> ";
    std::string text, input, expected;
    int uid = -1, examples = 0; // uid -1: outside a block
    while (std::getline(page, text)) {
        const bool isFence = text.starts_with("```"), isInput = uid >= 0 && text.starts_with(prompt);
        if (!input.empty() && (isFence || isInput)) {
            EXPECT_EQ(show(interpreter, input, uid), expected.substr(0, expected.find_last_not_of('\n') + 1))
                << input;
            ++examples;
            input.clear();
        }
        if (isFence) {
            uid = !text.starts_with("```kepl") ? -1 : text == "```kepl" ? 3 : text.back() - '0';
            resetStore();
        } else if (isInput) {
            input = text.substr(prompt.size());
            expected.clear();
        } else {
            expected += text + "\n";
        }
    }
    return examples;
}

TEST_F(KeplDocumentation, ShowsWhatLinesAnswer) {
    std::filesystem::create_directory(path);
    int examples = 0;
    for (const auto& page : std::filesystem::directory_iterator(TALUX_DOCUMENTATION)) {
        std::ifstream text(page.path());
        examples += follow(interpreter, text);
    }
    EXPECT_GT(examples, 70);
    std::filesystem::remove_all(path);
}
