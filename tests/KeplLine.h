// Evaluating KEPL lines in a test.
#ifndef TALUX_TEST_KEPLLINE_H
#define TALUX_TEST_KEPLLINE_H

#include <span>
#include <string>

#include <gtest/gtest.h>

#include "ParamSystem/KEPL_Interpreter.h"
#include "ParamSystem/TALUX_Var.h"

namespace talux_test {

// Stands in the result buffer before a line: an answer that is still this was never written.
inline const std::string kUntouched = "(untouched)";

struct Outcome {
    int result;
    std::string answer; // with the terminator "#"
    std::string error;
    bool operator==(const Outcome&) const = default;
};

inline Outcome done(const std::string& answer) {
    return {kLineDone, answer + "#", ""};
}
inline Outcome refused(const std::string& text) { // by a variable term
    return {kLineError, text + "#", text};
}
inline Outcome failed(const std::string& text) {
    return {kLineError, kUntouched, text};
}
inline const Outcome kRightsTooLow = done("<< RIGHTS TOO LOW >>");

inline std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
    return out << outcome.result << " \"" << outcome.answer << "\" error \"" << outcome.error << '"';
}

// The chunks that shell terms sent: each in brackets, with "+" when more followed.
inline std::string streamed;
inline void collect(char* buffer, int buffered) {
    streamed += "[" + std::string(buffer) + "]" + (buffered != 0 ? "+" : "");
}

inline Outcome evaluate(KEPL_Interpreter& interpreter, std::string line, int uid = 3) {
    char terminator[] = "#", error[128] = "?", result[kKeplTextSize + 1] = "";
    kUntouched.copy(result, kUntouched.size());
    streamed.clear();
    const int code = interpreter.ProcessLine(line.data(), collect, result, terminator, uid);
    interpreter.GetError(error, sizeof error);
    return {code, result, error};
}

// Factory defaults in both spaces.
inline void resetStore() {
    LoadDefParamProperties();
    VarClean();
    VarSetDefault();
    VarUpdateGlobalSpace();
}

struct LineRow {
    std::string line;
    Outcome expected;
    int uid = 3;
};

class KeplTest : public testing::Test {
protected:
    void SetUp() override { resetStore(); }
    Outcome line(const std::string& text, int uid = 3) { return evaluate(interpreter, text, uid); }

    // Every row for itself, on factory defaults; names the rows that fail.
    void expectLines(std::span<const LineRow> rows) {
        for (const LineRow& row : rows) {
            resetStore();
            EXPECT_EQ(line(row.line, row.uid), row.expected) << "line \"" << row.line << "\" uid " << row.uid;
        }
    }

    char path[10] = "/tmp/kepl";
    KEPL_Interpreter interpreter{path};
};

} // namespace talux_test

#endif
