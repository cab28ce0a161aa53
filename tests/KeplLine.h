// Evaluating KEPL lines in a test.
#ifndef TALUX_TEST_KEPLLINE_H
#define TALUX_TEST_KEPLLINE_H

#include <initializer_list>
#include <sstream>
#include <string>
#include <vector>

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
inline const std::string kSyntax = "<< SYNTAX ERROR >>", kFull = "<< OUTPUT BUFFER EXCEEDED >>";

inline std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
    return out << outcome.result << " \"" << outcome.answer << "\" error \"" << outcome.error << '"';
}

// What shell terms sent: as it is, and in chunks, each in brackets with "+" when more followed.
inline std::string output, streamed;
inline void collect(char* buffer, int buffered) {
    output += buffer;
    streamed += "[" + std::string(buffer) + "]" + (buffered != 0 ? "+" : "");
}

inline Outcome evaluate(KEPL_Interpreter& interpreter, std::string line, int uid = 3) {
    char terminator[] = "#", error[128] = "?", result[kKeplTextSize + 1] = "";
    kUntouched.copy(result, kUntouched.size());
    output = streamed = "";
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

inline std::string times(int count, const std::string& text) {
    std::string all;
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}

// The pieces between the bars.
inline std::vector<std::string> split(const std::string& text) {
    std::vector<std::string> pieces;
    std::istringstream stream(text);
    for (std::string piece; std::getline(stream, piece, '|');)
        pieces.push_back(piece);
    return pieces;
}

class KeplTest : public testing::Test {
protected:
    // Lines with bars between them that end alike. "<uid>:" in front of one limits its rights.
    struct Alike {
        Outcome expected;
        std::string lines;
    };

    void SetUp() override { resetStore(); }
    Outcome line(const std::string& text, int uid = 3) { return evaluate(interpreter, text, uid); }

    // Every line for itself, on factory defaults; names those that fail.
    void expectLines(std::initializer_list<Alike> groups) {
        for (const Alike& group : groups)
            for (const std::string& text : split(group.lines)) {
                resetStore();
                const bool limited = text.size() > 1 && text[1] == ':';
                EXPECT_EQ(limited ? line(text.substr(2), text[0] - '0') : line(text), group.expected) << text;
            }
    }

    char path[10] = "/tmp/kepl";
    KEPL_Interpreter interpreter{path};
};

} // namespace talux_test

#endif
