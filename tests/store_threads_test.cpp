// Several processes and several threads at the store at once. Nothing of the C library is replaced here, so
// that the thread sanitizer can watch.
#include "Store.h"

#include "ParamSystem/KEPL_Interpreter.h"

#include <atomic>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using namespace talux_test;

// A child goes on with the segments of its parent, whatever other threads of that one are doing.
int useStoreInChild() {
    const pid_t child = fork();
    if (child == 0) {
        alarm(10);
        VarSetGlobalTextValue(9067, const_cast<char*>("from the child"));
        _exit(VarUpdateGlobalSpace());
    }
    int status = 0;
    waitpid(child, &status, 0);
    return status;
}

// Writers fill values, runs, texts and records with one letter each, in both spaces; no reader ever sees two.
// The thread sanitizer sees a copy without its lock at once, whatever its values are.
TEST(SeveralAtOnce, ThreadsNeverTearWhatOneLockHolds) {
    std::atomic<bool> stop{true};
    const auto write = [&stop](char letter) {
        std::vector<double> run(384, letter);
        std::string text(static_cast<std::size_t>(letter), letter), record(236, letter);
        double number = 0;
        std::memset(&number, letter, sizeof number);
        do {
            VarSetDoubleValueArray(1000, run.data(), 384);
            VarSetGlobalDoubleValue(1383, number);
            VarSetGlobalTextValue(9068, text.data()); // as long as its letter's code
            VarSetGlobalStructValue(30000, record.data(), 236);
            VarUpdateGlobalSpace();
            const KEPL_Interpreter another(kNoDirectory);
        } while (!stop);
    };
    const auto uniform = [](const auto* values, std::ptrdiff_t count) {
        return std::count(values, values + count, values[0]) == count;
    };
    LoadDefParamProperties();
    write('a');
    stop = false;
    std::jthread a(write, 'a'), b(write, 'B');
    int torn = 0;
    double run[384], number;
    char text[128], record[236];
    for (int k = 0; k < 2000; ++k) {
        torn += k % 50 == 0 && useStoreInChild() != W_EXITCODE(1, 0);
        VarGetDoubleValueArray(1000, run, 384);
        VarGetGlobalDoubleValue(1383, &number);
        VarGetGlobalTextValue(9068, text);
        VarGetGlobalStructValue(30000, record, sizeof record);
        torn += !uniform(run, 384) || !uniform(reinterpret_cast<char*>(&number), sizeof number) ||
                !uniform(record, sizeof record) || !uniform(text, text[0]) || text[+text[0]] != 0;
    }
    stop = true;
    EXPECT_EQ(torn, 0);
    VarGetGlobalTextValue(9067, text);
    EXPECT_STREQ(text, "from the child");
}

} // namespace
