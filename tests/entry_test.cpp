// The entry functions for linked programs.
#include "src/talux_interpreter.h"

#include "ParamSystem/TALUX_Var.h"

#include <gtest/gtest.h>

#include <cstring>
#include <dlfcn.h>
#include <string>
#include <vector>

namespace {

// This program's own initialisers run after the library's.
const bool attachedBeforeMain = pVarGlobal != nullptr && pVarTemp != nullptr && pVarStruct != nullptr;

std::vector<std::pair<std::string, int>> chunks;
void collect(char* buffer, int buffered) {
    chunks.emplace_back(buffer, buffered);
}

struct Evaluated {
    int result;
    std::string answer;
};

Evaluated evaluate(std::string line, std::string terminator = "\n") {
    char answer[TALUX_ANSWER_SIZE] = "untouched";
    const int result = talux_interpreter_ProcessLine(line.data(), collect, answer, terminator.data());
    return {result, answer};
}

std::string takeError() {
    char text[128];
    EXPECT_EQ(talux_interpreter_GetError(text, sizeof text), 1);
    return text;
}

struct Entry : testing::Test {
    Entry() { talux_interpreter_Init(); }
};

} // namespace

TEST(EntryNames, ArePlainC) {
    for (const char* name :
         {"talux_interpreter_Init", "talux_interpreter_ProcessLine", "talux_interpreter_GetError"})
        EXPECT_NE(dlsym(RTLD_DEFAULT, name), nullptr) << name;
}

TEST(EntryStart, AttachesTheStoreBeforeMainWithTheRootFolderForItsFiles) {
    EXPECT_TRUE(attachedBeforeMain);
    EXPECT_STREQ(szParameterPath, "");
}

TEST_F(Entry, LinesHaveFullRightsAndTheCallersTerminator) {
    struct Row {
        const char* line;
        const char* terminator;
        int result;
        const char* answer;
        const char* error;
    };
    for (const auto& [line, terminator, result, answer, error] :
         {Row{"1,2,+", "\n", 1, "3.000000\n", ""},
          {"1,2,+", "", 1, "3.000000", ""},
          {"1,2,+", "<END>", 1, "3.000000<END>", ""},
          {"", "\n", 0, "untouched", ""},
          {"nonsense", "\n", -1, "untouched", "<< SYNTAX ERROR >>"},
          {"1,0,/", "\n", -1, "untouched", "Division durch 0"},
          {"TLX_vBE", "!", -1, "<< INDEX REQUIRED >>!", "<< INDEX REQUIRED >>"},
          {"TLX_FW_BLOCK=1", "\n", 1, "\n", ""}, // a setting of the highest level
          {"TLX_FW_BLOCK", "\n", 1, "1\n", ""}}) {
        const Evaluated got = evaluate(line, terminator);
        EXPECT_EQ(got.result, result) << line;
        EXPECT_EQ(got.answer, answer) << line;
        EXPECT_EQ(takeError(), error) << line;
    }
}

TEST_F(Entry, AnErrorIsToldOnceIntoABufferOfAnySize) {
    evaluate("nonsense");
    char text[8];
    std::memset(text, '#', sizeof text);
    EXPECT_EQ(talux_interpreter_GetError(text, 4), 1);
    EXPECT_EQ(std::string(text, sizeof text), "<< S####"); // no NUL: the text fills it
    EXPECT_EQ(takeError(), "");

    evaluate("1,0,/");
    char padded[32];
    std::memset(padded, '#', sizeof padded);
    talux_interpreter_GetError(padded, 31);
    EXPECT_EQ(std::string(padded, 32), "Division durch 0" + std::string(15, '\0') + "#");
}

TEST_F(Entry, TheLongestAnswerFitsTheBuffer) {
    std::string longest;
    for (int last = 2; last <= 247; ++last) {
        const Evaluated got = evaluate("TLX_conman_status 1." + std::to_string(last));
        if (got.result == 1) longest = got.answer;
    }
    EXPECT_GT(longest.size(), 2950u);
    EXPECT_LT(longest.size(), std::size_t{TALUX_ANSWER_SIZE});
}

TEST_F(Entry, ShellOutputGoesToTheCallback) {
    chunks.clear();
    EXPECT_EQ(evaluate("system echo hi", "$").answer, "");
    const std::vector<std::pair<std::string, int>> expected{{"> ", 1}, {"hi\n", 1}, {"\n", 1}, {"$", 0}};
    EXPECT_EQ(chunks, expected);
}
