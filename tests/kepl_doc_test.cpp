// The examples in the language's documentation are true.
#include "KeplLine.h"

#include <filesystem>
#include <fstream>

using namespace talux_test;
using KeplDocumentation = KeplTest;

// Examples show the language, not the machine's network.
extern "C" int system(const char*) {
    return 0;
}

namespace {

std::string shellOutput;
void take(char* buffer, int) {
    shellOutput += buffer;
}

// What a user sees of a line, without the newlines at its end.
std::string show(KEPL_Interpreter& interpreter, std::string line, int uid) {
    char result[kKeplTextSize + 1] = "", terminator[] = "\n", error[128];
    shellOutput.clear();
    const int code = interpreter.ProcessLine(line.data(), take, result, terminator, uid);
    interpreter.GetError(error, sizeof error);
    return shellOutput + (code == kLineError ? error : result);
}

std::string withoutLastNewlines(std::string text) {
    while (text.ends_with('\n'))
        text.pop_back();
    return text;
}

} // namespace

TEST_F(KeplDocumentation, ShowsWhatLinesAnswer) {
    std::filesystem::create_directory(path);
    std::ifstream document(TALUX_DOCUMENTATION);
    ASSERT_TRUE(document) << TALUX_DOCUMENTATION;
    const std::string prompt = "kepl> ";
    std::string text, input, expected;
    int uid = -1, examples = 0; // uid -1: outside a block
    const auto check = [&] {
        if (input.empty()) return;
        EXPECT_EQ(withoutLastNewlines(show(interpreter, input, uid)), withoutLastNewlines(expected)) << input;
        ++examples;
        input.clear();
    };
    while (std::getline(document, text)) {
        if (text.starts_with("```")) {
            check();
            const bool begins = text.starts_with("```kepl");
            uid = !begins ? -1 : text == "```kepl" ? 3 : text.back() - '0';
            resetStore();
        } else if (uid >= 0 && text.starts_with(prompt)) {
            check();
            input = text.substr(prompt.size());
            expected.clear();
        } else if (uid >= 0) {
            expected += text + "\n";
        }
    }
    EXPECT_GT(examples, 40);
    std::filesystem::remove_all(path);
}
