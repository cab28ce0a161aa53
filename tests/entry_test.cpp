// The entry functions for linked programs.
#include "src/talux_interpreter.h"

#include "ParamSystem/KEPL_Interpreter.h"
#include "ParamSystem/TALUX_Var.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

// The longest answer and a terminator of one character.
static_assert(TALUX_ANSWER_SIZE >= kKeplTextSize + 1);

// This program's own initialisers run after the library's.
static const bool attachedBeforeMain = pVarGlobal != nullptr && pVarTemp != nullptr && pVarStruct != nullptr;

TEST(Entry, ServesLinkedPrograms) {
    EXPECT_TRUE(attachedBeforeMain);
    EXPECT_STREQ(szParameterPath, "");
    talux_interpreter_Init();
    const struct {
        std::string line, terminator;
        int result;
        std::string answer, error;
    } rows[] = {{"1,2,+", "\n", 1, "3.000000\n", ""},
                {"1,2,+", "", 1, "3.000000", ""},
                {"", "\n", 0, "", ""},
                {"nonsense", "\n", -1, "nonsense", "<< SYNTAX ERROR >>"},
                {"TLX_vBE", "<END>", -1, "<< INDEX REQUIRED >><END>", "<< INDEX REQUIRED >>"},
                {"system echo nowhere", "\n", 1, "", ""},
                {"TLX_Name=as long as the rest of the line below", "\n", 1, "\n", ""},
                // A text is read first; then a setting of the highest level.
                {"TLX_Name,TLX_FW_BLOCK=1,TLX_FW_BLOCK", "\n", 1, "1\n", ""}};
    for (auto [line, terminator, result, answer, error] : rows) {
        char buffer[TALUX_ANSWER_SIZE], text[128]; // for the line, too
        std::strcpy(buffer, line.c_str());
        EXPECT_EQ(talux_interpreter_ProcessLine(buffer, nullptr, buffer, terminator.data()), result) << line;
        EXPECT_EQ(buffer, answer) << line;
        EXPECT_EQ(talux_interpreter_GetError(text, sizeof text), 1);
        EXPECT_EQ(text, error) << line;
    }
}
