// The examples of the language in the documentation are true, with real files, shells and pipes.
#include "Machine.h"
#include "ParamSystem/KEPL_Interpreter.h"
#include "ParamSystem/TALUX_Var.h"

#include <filesystem>
#include <fstream>

using namespace talux_test;

namespace {

std::string output; // of shell terms
void collect(char* buffer, int /*buffered*/) {
    output += buffer;
}

std::string withoutLineEnds(const std::string& text) {
    return text.substr(0, text.find_last_not_of('\n') + 1);
}

// What a user sees of a line.
std::string show(KEPL_Interpreter& interpreter, std::string line, int uid) {
    char terminator[] = "\n", result[kKeplTextSize + 1];
    output.clear();
    if (interpreter.ProcessLine(line.data(), collect, result, terminator, uid) == kLineError)
        interpreter.GetError(result, kKeplMaxTerm);
    return withoutLineEnds(output + result);
}

void resetStore() {
    VarClean();
    VarSetDefault();
    VarUpdateGlobalSpace();
}

// Carries out the blocks of one page; gives the number of examples.
int follow(KEPL_Interpreter& interpreter, std::istream& page) {
    const std::string prompt = "kepl> ";
    std::string text, input, expected;
    int uid = -1, examples = 0; // uid -1: outside a block
    while (std::getline(page, text)) {
        const bool isFence = text.starts_with("```"), isInput = uid >= 0 && text.starts_with(prompt);
        if (!input.empty() && (isFence || isInput)) {
            EXPECT_EQ(show(interpreter, input, uid), withoutLineEnds(expected)) << input;
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

} // namespace

class KeplDocumentation : public OnMachine {};

TEST_F(KeplDocumentation, ShowsWhatLinesAnswer) {
    char path[] = "/tmp/kepl";
    std::filesystem::create_directory(path);
    LoadDefParamProperties();
    KEPL_Interpreter interpreter(path);
    int examples = 0;
    for (const auto& page : std::filesystem::directory_iterator(TALUX_DOCUMENTATION)) {
        std::ifstream text(page.path());
        examples += follow(interpreter, text);
    }
    EXPECT_GT(examples, 70);
    std::filesystem::remove_all(path);
}
