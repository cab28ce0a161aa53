// Running the program talux.
#ifndef TALUX_TEST_PROGRAM_H
#define TALUX_TEST_PROGRAM_H

#include "../Store.h"

#include <sys/wait.h>
#include <vector>

namespace talux_test {

// What runs in the emulator or under the address sanitizer may take so many times longer.
#if defined(TALUX_EMULATED) || defined(__SANITIZE_ADDRESS__)
inline constexpr int kTimesSlower = 10;
#else
inline constexpr int kTimesSlower = 1;
#endif

struct Ended {
    int status; // -1: it did not end by itself
    std::string output;
};

// `command` is a line of the shell in which talux is found; error stream included where it says so.
inline Ended run(const std::string& command) {
    FILE* const pipe =
        popen(("ulimit -n 24; PATH=" TALUX_BIN ":$PATH; LANG=C; export LANG; " + command).c_str(), "r");
    Ended result{-1, {}};
    char block[4096];
    for (std::size_t size; (size = std::fread(block, 1, sizeof block, pipe)) > 0;)
        result.output.append(block, size);
    const int status = pclose(pipe);
    if (WIFEXITED(status) && WEXITSTATUS(status) < 126) result.status = WEXITSTATUS(status);
    return result;
}

inline std::vector<std::string> pieces(const std::string& text, char end) {
    std::vector<std::string> all;
    std::istringstream stream(text);
    for (std::string piece; std::getline(stream, piece, end);)
        all.push_back(piece);
    return all;
}

// The store as a device has it after its start: factory settings, live.
struct InStartedDevice : InDirectory {
    void SetUp() override {
        InDirectory::SetUp();
        resetStore();
    }
    static void reset() {
        VarSetDefault();
        VarUpdateGlobalSpace();
    }
    std::string file(const char* name) const { return contents(directory / name); }
};

} // namespace talux_test

#endif
