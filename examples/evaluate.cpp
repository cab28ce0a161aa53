// Evaluates the lines of the command language given as arguments, one answer per line:
//
//   evaluate 'TLX_U12,1000,/' 'TLX_Name'
//
// Answers go to standard output, errors to the error stream; the exit status is 1 when a line had one.
#include "src/talux_interpreter.h"

#include <cstdio>

namespace {

void printShellOutput(char* chunk, int /*buffered*/) {
    std::fputs(chunk, stdout);
}

bool evaluate(char* line) {
    char answer[TALUX_ANSWER_SIZE] = "";
    char newline[] = "\n";
    const int result = talux_interpreter_ProcessLine(line, printShellOutput, answer, newline);
    if (result >= 0) {
        std::fputs(answer, stdout);
        std::fflush(stdout);
        return true;
    }
    char error[128];
    talux_interpreter_GetError(error, sizeof error);
    std::fprintf(stderr, "%s: %s\n", line, error);
    return false;
}

} // namespace

int main(int argc, char** argv) {
    talux_interpreter_Init();
    bool good = true;
    for (int i = 1; i < argc; ++i)
        good = evaluate(argv[i]) && good;
    return good ? 0 : 1;
}
