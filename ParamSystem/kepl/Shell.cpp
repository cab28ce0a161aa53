#include "ParamSystem/kepl/Shell.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <span>

#include "ParamSystem/os/Os.h"
#include "ParamSystem/support/Text.h"

namespace talux::kepl {

namespace {

constexpr int kShellLevel = 3;

enum Buffered { kLastChunk = 0, kMoreFollows = 1 };

// Fragments that a board does not let through: tools of its boot environment, backups, a test output.
constexpr const char* kForbiddenArm5[] = {"talux-pondo"};
constexpr const char* kForbiddenArm7[] = {
    "fw_printenv", "fw_setenv", "talux-bcard31", "bck_appfs", "backup.tgz", "/sys/class/gpio/gpio105/value",
};

std::span<const char* const> forbiddenOn(int machine) {
    if (machine == 0) return kForbiddenArm5;
    if (machine == 1) return kForbiddenArm7;
    return {};
}

bool contains(const char* text, const char* part) {
    return std::strstr(text, part) != nullptr;
}

// Below full rights the version files of the device may be shown. This keeps mistakes out, not intent: any
// command with both words in it passes.
bool isAllowed(const Line& line) {
    return line.uid >= kShellLevel || (contains(line.szToken, "cat") && contains(line.szToken, ".version"));
}

[[noreturn]] void endProcess(const char* command) {
    std::fprintf(stderr, "KEPL: system '%s' command, not allowed\n", command);
    std::fflush(stderr);
    std::exit(-1);
}

// The next character; a signal that the host handles meanwhile does not end the output.
int readCharacter(FILE* pipe) {
    for (;;) {
        errno = 0;
        const int character = std::getc(pipe);
        if (character != EOF || errno != EINTR) return character;
        std::clearerr(pipe);
    }
}

// Reads up to the end of a line or as much as fits. NUL characters cannot travel in a text and are left
// out. False at the end of the output.
bool readChunk(FILE* pipe, char (&chunk)[255]) {
    std::size_t length = 0;
    int character = 0;
    while (length < sizeof chunk - 1 && character != '\n' && (character = readCharacter(pipe)) != EOF)
        if (character != '\0') chunk[length++] = static_cast<char>(character);
    chunk[length] = '\0';
    return length > 0;
}

void streamOutput(const char* command, fnDataOut dataOut) {
    FILE* const pipe = os::openPipe(command);
    if (pipe == nullptr) std::perror("KEPL: system");

    char shell_result[255] = "> ";
    dataOut(shell_result, kMoreFollows);
    while (pipe != nullptr && readChunk(pipe, shell_result))
        dataOut(shell_result, kMoreFollows);
    copyText(shell_result, "\n");
    dataOut(shell_result, kMoreFollows);
    if (pipe != nullptr) os::closePipe(pipe);
}

} // namespace

Flow shellTerm(Line& line) {
    if (!isAllowed(line)) return line.refuseRights();
    os::logInfo("sec param: %s", line.szToken);

    line.words.SetString(line.szToken, " ", false);
    line.words.nextToken();
    if (!line.words.hasMoreTokens()) {
        copyText(line.txt, "command required\n");
        return line.showText();
    }
    char szSubToken[kKeplMaxTerm + 1];
    copyText(szSubToken, line.words.nextToken(""));
    line.txt[0] = '\0';

    const auto forbidden = forbiddenOn(line.machine);
    if (std::ranges::any_of(forbidden, [&](const char* part) { return contains(szSubToken, part); }))
        endProcess(szSubToken);

    streamOutput(szSubToken, line.dataOut);
    line.dataOut(line.terminator, kLastChunk);
    line.output = Output::nothing;
    return kNextTerm;
}

} // namespace talux::kepl
