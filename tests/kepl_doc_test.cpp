// The examples of the language in the documentation are true, with real files, shells and pipes.
#include "Machine.h"
#include "Store.h"

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

const bool kAccepts = std::getenv("TALUX_ACCEPT") != nullptr;

std::string answerOf(KEPL_Interpreter& interpreter, const std::string& line, int uid,
                     const std::string& expected) {
    const std::string answer = show(interpreter, line, uid);
    if (answer == withoutLineEnds(expected)) return expected;
    EXPECT_TRUE(kAccepts) << line << "\n" << answer << "\ninstead of\n" << expected;
    return answer.empty() ? "" : answer + "\n";
}

// Runs the blocks of one page, which becomes what it should show; returns the number of examples.
int follow(KEPL_Interpreter& interpreter, std::string& page) {
    const std::string prompt = "kepl> ";
    std::istringstream lines(page);
    std::string text, input, expected;
    int uid = -1, examples = 0; // uid -1: outside a block
    page.clear();
    while (std::getline(lines, text)) {
        const bool isFence = text.starts_with("```"), isInput = uid >= 0 && text.starts_with(prompt);
        if (!input.empty() && (isFence || isInput)) {
            page += answerOf(interpreter, input, uid, expected);
            ++examples;
            input.clear();
        }
        if (isFence || isInput || input.empty()) page += text + "\n";
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

using KeplDocumentation = OnMachine<>;

TEST_F(KeplDocumentation, ShowsWhatLinesAnswer) {
    char path[] = "/tmp/kepl";
    fs::create_directory(path);
    LoadDefParamProperties();
    KEPL_Interpreter interpreter(path);
    int examples = 0;
    for (const auto& page : fs::directory_iterator(TALUX_DOCUMENTATION)) {
        if (page.path().extension() != ".md") continue;
        const std::string before = contents(page.path());
        std::string text = before;
        examples += follow(interpreter, text);
        if (text != before && kAccepts) std::ofstream(page.path()) << text;
    }
    EXPECT_GT(examples, 40);
    fs::remove_all(path);
}
