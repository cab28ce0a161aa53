// Terms that run a shell command.
#include <cstdio>
#include <cstdlib>

#include "ParamSystem/kepl/Execution.h"
#include "ParamSystem/os/Os.h"
#include "support/Text.h"

namespace talux::kepl {

namespace {

enum Buffered { kLastChunk = 0, kMoreFollows = 1 };

[[noreturn]] void endProcess(const char* command) {
    std::fprintf(stderr, "KEPL: system '%s' command, not allowed\n", command);
    std::fflush(stderr);
    std::exit(-1);
}

// Reads up to the end of a line or as much as fits. NUL characters, which would end the text, are left
// out. False at the end of the output.
bool readChunk(FILE* pipe, char (&chunk)[255]) {
    std::size_t length = 0;
    int character = 0;
    while (length < sizeof chunk - 1 && character != '\n' && (character = os::readCharacter(pipe)) != EOF)
        if (character != '\0') chunk[length++] = static_cast<char>(character);
    chunk[length] = '\0';
    return length > 0;
}

void streamOutput(const char* command, fnDataOut dataOut, char* terminator) {
    FILE* const pipe = os::openPipe(command);
    if (pipe == nullptr) std::perror("KEPL: system");

    char shell_result[255] = "> ";
    dataOut(shell_result, kMoreFollows);
    while (pipe != nullptr && readChunk(pipe, shell_result))
        dataOut(shell_result, kMoreFollows);
    copyText(shell_result, "\n");
    dataOut(shell_result, kMoreFollows);
    dataOut(terminator, kLastChunk);
    if (pipe != nullptr) os::closePipe(pipe);
}

} // namespace

TermResult runShell(const RunShell& shell, fnDataOut dataOut, char* terminator, char* txt) {
    if (shell.command.empty()) {
        copyText(txt, kKeplTextSize, "command required\n");
        return answering(Output::text);
    }
    char command[kKeplMaxTerm + 1];
    copyText(command, shell.command);
    if (shell.isForbidden) endProcess(command);
    streamOutput(command, dataOut, terminator);
    return answering(Output::empty);
}

} // namespace talux::kepl
