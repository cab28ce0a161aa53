// Shell terms: framing and chunks, what boards forbid, rights.
#include "KeplLine.h"

#include <csignal>
#include <cstdio>
#include <fstream>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/utsname.h>

#include <gmock/gmock.h>

using namespace talux_test;
using KeplShell = KeplTest;

static const char* machineName = "x86_64";
static int unameResult = 0;

// The board is whatever a test says.
extern "C" int uname(utsname* system) noexcept {
    *system = {};
    for (std::size_t i = 0; machineName[i] != '\0'; ++i)
        system->machine[i] = machineName[i];
    return unameResult;
}

namespace {

const Outcome kNothing = {kLineDone, "", ""};

std::string sent(const std::string& chunks) {
    return "[> ]+" + chunks + "[\n]+[#]";
}

std::size_t received;
void countSlowly(char* buffer, int) {
    received += std::string(buffer).size();
    if (received % 1000 == 0) usleep(1000);
}

} // namespace

TEST_F(KeplShell, FramesTheOutput) {
    const std::string x254 = times(254, "x"), x46 = times(46, "x");
    const struct {
        std::string line, chunks;
    } rows[] = {{"system echo hi", "[hi\n]+"},
                {"SYSTEMATIC   echo  a   b ; printf c", "[a b\n]+[c]+"},
                {"system printf %300s\\\\n y | tr y\\  x", "[" + x254 + "]+[" + x46 + "\n]+"},
                {"system printf %254s\\\\n y | tr y\\  x", "[" + x254 + "]+[\n]+"},
                {"system printf %254s y | tr y\\  x", "[" + x254 + "]+"},
                {"system printf 'a\\0b\\n\\0\\nc'", "[ab\n]+[\n]+[c]+"}, // a NUL cannot travel in a text
                {"system true", ""},
                {"system exit 3", ""},
                {"system nonsense 2>/dev/null", ""},
                {"system echo out; echo err 1>&2", "[out\n]+"},
                {"system echo a; kill -9 $$; echo b", "[a\n]+"},
                {"system echo a; exec >&-; sleep 0.1", "[a\n]+"},
                {"system echo a | grep -n a", "[1:a\n]+"}};
    for (const auto& row : rows) {
        EXPECT_EQ(line(row.line), kNothing) << row.line;
        EXPECT_EQ(streamed, sent(row.chunks)) << row.line;
    }
    line("system echo 1,system echo 2");
    EXPECT_EQ(streamed, sent("[1\n]+") + sent("[2\n]+"));
    line("system echo a,b"); // a comma ends the term
    EXPECT_EQ(streamed, sent("[a\n]+"));
    EXPECT_EQ(line(" system   "), done("command required\n"));
    EXPECT_EQ(streamed, "");
}

TEST_F(KeplShell, LosesNothing) {
    std::string text = "system head -c 3000000 /dev/zero | tr '\\0' x", result(8, '?'), terminator = "#";
    received = 0;
    interpreter.ProcessLine(text.data(), countSlowly, result.data(), terminator.data(), 3);
    EXPECT_EQ(received, 3000000u + 4);

    // Signals that the host handles meanwhile do not end the output.
    struct sigaction action {};
    action.sa_handler = [](int) {};
    sigaction(SIGALRM, &action, nullptr);
    itimerval every{{0, 20000}, {0, 20000}}, never{};
    setitimer(ITIMER_REAL, &every, nullptr);
    line("system for i in 1 2 3; do sleep 0.1; echo $i; done");
    setitimer(ITIMER_REAL, &never, nullptr);
    EXPECT_EQ(streamed, sent("[1\n]+[2\n]+[3\n]+"));
}

TEST_F(KeplShell, SaysWhyNothingRuns) {
    rlimit before{};
    getrlimit(RLIMIT_NOFILE, &before);
    const rlimit none{3, before.rlim_max};
    testing::internal::CaptureStderr();
    setrlimit(RLIMIT_NOFILE, &none);
    const Outcome outcome = line("system echo hi");
    setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_THAT(testing::internal::GetCapturedStderr(), testing::StartsWith("KEPL: system: "));
    EXPECT_EQ(outcome, kNothing);
    EXPECT_EQ(streamed, sent(""));
}

TEST_F(KeplShell, ShowsVersionsAtEveryLevel) {
    std::ofstream("/tmp/kepl.version") << "1.2\n";
    EXPECT_EQ(line("system cat /tmp/kepl.version", 0), kNothing);
    EXPECT_EQ(streamed, sent("[1.2\n]+"));
    for (const std::string& term : split("system cat /tmp/kepl-version|system CAT /tmp/kepl.version|"
                                         "system ls /tmp/kepl.version|system|system ls")) {
        EXPECT_EQ(line(term + ",system echo x", 2), kRightsTooLow) << term;
        EXPECT_EQ(streamed, "");
    }
    std::remove("/tmp/kepl.version");
}

TEST_F(KeplShell, KnowsTheBoard) {
    const struct {
        const char* machine;
        int result, board;
    } rows[] = {{"armv5tejl", 0, 0}, {"armv7l", 0, 1}, {"armv7L", 0, -1}, {"armv7", 0, -1},
                {"armv7l2", 0, -1},  {"", 0, -1},      {"armv7l", -1, -1}};
    for (const auto& row : rows) {
        machineName = row.machine;
        unameResult = row.result;
        EXPECT_EQ(interpreter.read_machine(), row.board) << row.machine;
    }
    unameResult = 0;
}

TEST_F(KeplShell, EndsTheProcessOnForbiddenCommands) {
    const std::string lists[] = {"talux-pondo",
                                 "fw_printenv|fw_setenv|talux-bcard31|bck_appfs|backup.tgz|"
                                 "/sys/class/gpio/gpio105/value",
                                 ""};
    const char* const boards[] = {"armv5tejl", "armv7l", "x86_64"};
    for (int board = 0; board < 3; ++board) {
        machineName = boards[board];
        KEPL_Interpreter own(path);
        for (int list = 0; list < 3; ++list)
            for (const std::string& fragment : split(lists[list])) {
                const std::string command = ": x" + fragment + " y";
                const std::string nearly =
                    "system : " + fragment.substr(1) + " " + fragment.substr(0, fragment.size() - 1);
                EXPECT_EQ(evaluate(own, nearly), kNothing) << nearly;
                if (board == list)
                    EXPECT_EXIT(evaluate(own, "system  " + command + ",5"), testing::ExitedWithCode(255),
                                "^KEPL: system '" + command + "' command, not allowed\n$");
                else
                    EXPECT_EQ(evaluate(own, "system  " + command + ",5"), kNothing)
                        << boards[board] << command;
            }
    }
    machineName = "armv7l";
    KEPL_Interpreter own(path);
    EXPECT_EQ(evaluate(own, "system : FW_SETENV"), kNothing);
    EXPECT_EQ(evaluate(own, "systemfw_setenv :"), kNothing); // that is the first word, not the command
}
