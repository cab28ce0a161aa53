// What a save leaves on the disk when a call fails, when the power fails, when it is killed, while another
// program reads, and where a file cannot be replaced.
#include "Files.h"

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <dlfcn.h>
#include <fcntl.h>
#include <functional>
#include <map>
#include <span>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// ---- What the library asks of the disk: made to fail, and written down ----

constexpr int kShort = -1; // no error: half of the bytes only
constinit bool watching = false;
constinit int fault = 0, callsBeforeFault = -1;
constinit const char* failedCall = "";

enum class Change { make, write, sync, syncDirectory, rename };
struct Step {
    Change change;
    ino_t file = 0;
    std::string name = {}, newName = {}, data = {};
};
std::vector<Step> steps;
std::function<void()> onSleep; // what the others do meanwhile
constinit long slept = 0;      // milliseconds

// Whether this call is the one that is hit; `moved` is then halved or the call fails.
bool fails(const char* call, std::size_t* moved = nullptr) {
    if (!watching || (fault == kShort && moved == nullptr) || callsBeforeFault-- != 0) return false;
    failedCall = call;
    if (fault == kShort) *moved = (*moved + 1) / 2;
    errno = fault;
    return fault != kShort;
}

void note(Change change, int descriptor, std::string name = {}, std::string newName = {},
          std::string data = {}) {
    if (!watching) return;
    struct stat status {};
    if (descriptor >= 0) fstatat(descriptor, "", &status, AT_EMPTY_PATH);
    if (change == Change::sync && S_ISDIR(status.st_mode)) change = Change::syncDirectory;
    steps.push_back({change, status.st_ino, std::move(name), std::move(newName), std::move(data)});
}

template <typename Function>
Function* next(Function* /*own*/, const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

#define TALUX_CALL(Result, function, parameters, arguments, ...)                                             \
    Result function parameters {                                                                             \
        if (fails(#function)) return -1;                                                                     \
        const Result result = next(&function, #function) arguments;                                          \
        if (result >= 0) {                                                                                   \
            __VA_ARGS__;                                                                                     \
        }                                                                                                    \
        return result;                                                                                       \
    }

extern "C" {

TALUX_CALL(int, fchown, (int file, uid_t owner, gid_t group) noexcept, (file, owner, group))
TALUX_CALL(int, fchmod, (int file, mode_t mode) noexcept, (file, mode))
TALUX_CALL(int, flock, (int file, int operation) noexcept, (file, operation))
TALUX_CALL(int, renameat, (int from, const char* name, int to, const char* newName) noexcept,
           (from, name, to, newName), note(Change::rename, -1, name, newName))

int fsync(int file) { // takes its time on a real disk
    if (fails("fsync")) return -1;
    note(Change::sync, file);
    return 0;
}
int close(int file) { // closes whatever it says
    const int result = next(&close, "close")(file);
    return fails("close") ? -1 : result;
}
int open(const char* path, int flags, ...) {
    return fails("open") ? -1 : next(&open, "open")(path, flags, 0666);
}
int openat(int directory, const char* name, int flags, ...) {
    if (fails("openat")) return -1;
    const int file = next(&openat, "openat")(directory, name, flags, 0666);
    if (file >= 0 && (flags & O_CREAT) != 0) note(Change::make, file, name);
    return file;
}
ssize_t read(int file, void* block, size_t size) {
    const bool endsProcess = fault != EINTR && fault != kShort;
    return !endsProcess && fails("read", &size) ? -1 : next(&read, "read")(file, block, size);
}
ssize_t write(int file, const void* block, size_t size) {
    if (fails("write", &size)) return -1;
    note(Change::write, file, {}, {}, {static_cast<const char*>(block), size});
    return next(&write, "write")(file, block, size);
}
int system(const char* /*command*/) {
    return 0;
}
int usleep(useconds_t /*microseconds*/) {
    slept += 10; // a kernel with long ticks
    if (onSleep) onSleep();
    return 0;
}
int clock_gettime(clockid_t clock, timespec* time) noexcept {
    if (clock != CLOCK_MONOTONIC) return next(&clock_gettime, "clock_gettime")(clock, time);
    *time = {slept / 1000, slept % 1000 * 1000000};
    return 0;
}
}

namespace {

using namespace talux_test;

struct Operation {
    int (*run)();
    int flag;
    std::vector<std::string> files; // that it writes, in this order
    std::string channel;            // what the first one has for it
};
const Operation kOperations[] = {
    {VarSaveParams, 8000, {"parameter.ini", kDatedCopy}, "TLX_channel=1\n"},
    {VarSaveSecParams, 8002, {"sec_parameter.ini", "sec_" + kDatedCopy}, ""},
    {VarSaveAll,
     8001,
     {"parameter.ini", kDatedCopy, "sec_parameter.ini", "sec_" + kDatedCopy, "ip_config.ini"},
     "TLX_channel=2\n"},
    {VarSaveIPConfig, 8001, {"ip_config.ini"}, ""},
    {VarLoadIPConfig, 8001, {"ip_config.ini"}, ""},
};

bool holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

class Disk : public InDirectory {
protected:
    void SetUp() override {
        InDirectory::SetUp();
        for (const auto save : {VarSaveParams, VarSaveSecParams, VarSaveIPConfig})
            change(0), save();
        fs::remove(directory / kDatedCopy), fs::remove(directory / ("sec_" + kDatedCopy));
        for (const std::string& name : namesIn(directory))
            old[name] = contents(directory / name);
    }

    static void change(int value) {
        VarSetLongValue(6029, value);
        VarSetBoolValue(8176, static_cast<char>(value));
        VarSetIpValue(16000, std::to_string(value).data());
    }

    // The old files lie there, others are live, and others still pending.
    void begin() {
        for (const std::string& name : namesIn(directory))
            fs::remove(directory / name);
        for (const auto& [name, whole] : old)
            std::ofstream(directory / name) << whole;
        change(2);
        VarUpdateGlobalSpace();
        change(1);
        for (const int flag : {8000, 8001, 8002})
            VarSetGlobalBoolValue(flag, 0);
    }

    // `error` hits the call after so many others.
    Outcome perform(const Operation& operation, int error = 0, int after = -1) {
        steps.clear();
        fault = error, callsBeforeFault = after, failedCall = "";
        const auto descriptors = namesIn("/proc/self/fd").size();
        watching = true;
        Outcome outcome = outcomeOf(operation.run);
        watching = false;
        EXPECT_EQ(namesIn("/proc/self/fd").size(), descriptors);
        return outcome;
    }

    void learn(const Operation& operation) {
        begin();
        EXPECT_EQ(std::get<0>(perform(operation)), 1);
        fresh.clear();
        for (const std::string& name : operation.files)
            fresh[name] = contents(directory / name);
        EXPECT_TRUE(holds(fresh[operation.files[0]], operation.channel));
    }

    // Every file is the old or the new one, whole; nothing else lies there. Whether all are new.
    bool isFresh(const Operation& operation) {
        bool all = true;
        for (const std::string& name : namesIn(directory))
            EXPECT_TRUE(old.count(name) + fresh.count(name) > 0) << name;
        for (const std::string& name : operation.files) {
            const std::string now = contents(directory / name);
            EXPECT_TRUE(now == fresh[name] || now == (old.count(name) > 0 ? old[name] : kNoFile))
                << name << now;
            EXPECT_TRUE(all || now != fresh[name] || failedCall == std::string("write"))
                << "after a failure: " << name;
            all = all && now == fresh[name];
        }
        return all;
    }

    std::map<std::string, std::string> old, fresh;
};

// What is said of a call that failed, and the result.
void expectTold(const std::string& call, const Outcome& outcome, bool wasThere) {
    const auto& [result, output, errors] = outcome;
    const bool wrote = call == "write", kept = call == "fsync" || call == "renameat";
    EXPECT_EQ(result, wrote || call == "fchown" || call == "fchmod" ? 1 : 0);
    EXPECT_EQ(holds(output, "Error (TALUX_Var): Can't write to file '"), wrote || kept) << output;
    EXPECT_TRUE(holds(errors, wrote             ? "write: "
                              : call == "fsync" ? "fsync: "
                              : kept            ? "rename: "
                              : result == 1     ? "Can't set owner and rights of file '"
                                                : "Can't open file '"))
        << errors;
    EXPECT_TRUE(call == "fsync" || holds(errors, "' stays as it is \n") == ((wrote || kept) && wasThere))
        << errors;
}

TEST_F(Disk, KeepsTheOldFileOrTheNewOneWhateverFails) {
    int faults = 0;
    for (const Operation& operation : kOperations) {
        const bool loads = operation.run == VarLoadIPConfig; // and saves what it loaded, the old file
        learn(loads ? kOperations[3] : operation);
        for (const int error : {EINTR, kShort, ENOSPC, EACCES, EROFS, EBUSY}) {
            for (int after = 0;; ++after, ++faults) {
                begin();
                const Outcome outcome = perform(operation, error, after);
                const std::string call = failedCall;
                if (call.empty()) break;
                SCOPED_TRACE(operation.files[0] + ": " + call + " " + std::to_string(error));
                const bool all = isFresh(operation);
                const auto& [result, output, errors] = outcome;
                const char raised = raw(kGlobal)[kBlocks[4].slotOf(operation.flag)];
                EXPECT_TRUE(loads || (result == 1 ? raised == 1 : raised == 0 || fresh.size() == 2));
                const bool isRefusal = error == EACCES || error == EROFS || error == EBUSY;
                // A directory that lets nothing be made or exchanged has its files written in place.
                const bool passes = error == EINTR || error == kShort || call == "close" || call == "flock" ||
                                    call == "openat" || (isRefusal && (call == "renameat" || call == "open"));
                if (!holds(output + errors, "Error (TALUX_Var): "))
                    EXPECT_TRUE(passes && (all || loads) && result == 1);
                else if (!loads)
                    expectTold(call, outcome, !holds(output, "/param_") && !holds(output, "/sec_param_"));
            }
        }
    }
    EXPECT_GT(faults, 400);
}

// ---- The power fails ----

// The disk after some steps. Changes of names reach it in their order, at the latest with a sync of the
// directory; data at any time until its sync.
struct Model {
    std::map<std::string, ino_t> names;
    std::map<ino_t, std::pair<std::string, bool>> data; // and whether it is synced
    std::vector<Step> unsettled;

    void apply(const Step& step) {
        auto& [bytes, isSynced] = data[step.file];
        if (step.change == Change::make) bytes.clear(), isSynced = false;
        if (step.change == Change::write) bytes += step.data, isSynced = false;
        if (step.change == Change::sync) isSynced = true;
        unsettled.push_back(step);
        if (step.change != Change::syncDirectory) return;
        for (const Step& change : unsettled)
            rename(names, change);
        unsettled.clear();
    }

    static void rename(std::map<std::string, ino_t>& names, const Step& step) {
        if (step.change == Change::make) names[step.name] = step.file;
        if (step.change == Change::rename) names[step.newName] = names[step.name], names.erase(step.name);
    }

    // All that the file may be when the power fails now.
    std::vector<std::string> afterCut(const std::string& name) const {
        std::vector<std::string> all;
        auto there = names;
        for (std::size_t k = 0; k <= unsettled.size(); rename(there, unsettled[k++])) {
            const auto found = there.find(name);
            const auto& [bytes, isSynced] =
                found == there.end() ? std::pair(std::string(kNoFile), true) : data.at(found->second);
            all.push_back(bytes);
            if (!isSynced)
                all.insert(all.end(),
                           {"", bytes.substr(0, bytes.size() / 2), std::string(bytes.size(), '\0')});
            if (k == unsettled.size()) break;
        }
        return all;
    }
};

TEST_F(Disk, KeepsTheOldFileOrTheNewOneWhenThePowerFails) {
    int states = 0;
    for (const Operation& operation : std::span(kOperations).first(4)) {
        learn(operation);
        begin();
        Model model;
        for (const auto& [name, whole] : old)
            model.data[model.names[name] = statusOf(directory / name).st_ino] = {whole, true};
        perform(operation);
        for (std::size_t cut = 0;; model.apply(steps[cut++])) {
            const bool isAnswered = cut == steps.size();
            for (const auto& [name, whole] : fresh)
                for (const std::string& there : model.afterCut(name)) {
                    const std::string before = old.count(name) > 0 ? old[name] : kNoFile;
                    EXPECT_TRUE(there == whole || (!isAnswered && there == before))
                        << name << " after step " << cut << ": " << there;
                    ++states;
                }
            if (isAnswered) break;
        }
    }
    EXPECT_GT(states, 200);
}

// ---- Others at work ----

TEST_F(Disk, IsReadWholeWhileOthersSaveAndAreKilled) {
    std::string path = directory / "file", whole[2];
    const auto save = [&](int value) {
        VarSetGlobalLongValue(6029, value % 2);
        return VarSaveParamFile(path.data());
    };
    for (const int value : {0, 1}) {
        EXPECT_EQ(save(value), 1);
        whole[value] = contents(path);
    }
    for (int round = 0; round < 20; ++round) {
        pid_t savers[6]; // more than there are names for new files
        for (pid_t& saver : savers)
            if (int value = 0; (saver = fork()) == 0) {
                while (save(value) == 1)
                    ++value;
                _exit(1);
            }
        for (int k = 0; k < 100; ++k) {
            const std::string now = contents(path);
            ASSERT_TRUE(now == whole[0] || now == whole[1]) << now;
        }
        for (const pid_t saver : savers) {
            int status = 0;
            kill(saver, SIGKILL), waitpid(saver, &status, 0);
            EXPECT_TRUE(WIFSIGNALED(status)) << "a save beside another one failed";
        }
    }
    for (const char* name : {".talux-save-0.tmp", ".talux-save-3.tmp"}) // with a gap between them
        std::ofstream(directory / name) << "TLX_channel=9\n";
    EXPECT_EQ(save(0), 1);
    EXPECT_EQ(contents(path), whole[0]);
    for (const auto& [name, content] : old)
        fs::remove(directory / name);
    EXPECT_EQ(namesIn(directory), std::vector<std::string>{"file"});
}

TEST_F(Disk, WaitsForTheSavesOfOthersButNotForEver) {
    std::vector<int> others;
    for (const char number : {'0', '1', '2', '3'}) {
        const fs::path name = directory / (std::string(".talux-save-") + number + ".tmp");
        others.push_back(open(name.c_str(), O_CREAT | O_RDWR, 0600));
        EXPECT_EQ(flock(others.back(), LOCK_EX), 0);
    }
    slept = 0;
    const auto [result, output, errors] = perform(kOperations[3]);
    EXPECT_EQ(result, 0);
    EXPECT_TRUE(holds(errors, "fopen: Resource temporarily unavailable")) << errors;
    EXPECT_EQ(slept, 5000);
    EXPECT_EQ(contents(directory / "ip_config.ini"), old["ip_config.ini"]);

    onSleep = [&] {
        if (slept == 5030) close(others[2]);
    };
    EXPECT_EQ(std::get<0>(outcomeOf(kOperations[3].run)), 1);
    EXPECT_EQ(slept, 5030);
    onSleep = nullptr;
    for (const int other : {others[0], others[1], others[3]})
        close(other);
}

// ---- What cannot be replaced, and links ----

TEST_F(Disk, WritesInPlaceWhatCannotBeReplaced) {
    learn(kOperations[0]);
    const std::string whole = fresh["parameter.ini"];
    const fs::path file = directory / "parameter.ini", other = directory / "other";
    std::string path = file;

    fs::create_hard_link(file, other);
    std::ofstream(file) << "old";
    EXPECT_EQ(VarSaveParamFile(path.data()), 1);
    EXPECT_TRUE(contents(other) == whole && fs::hard_link_count(file) == 2);
    const auto onLargeFile = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit;
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit small{100, limit.rlim_max};
    std::ofstream(file) << "old";
    setrlimit(RLIMIT_FSIZE, &small);
    const Outcome outcome = outcomeOf([&] { return VarSaveParamFile(path.data()); });
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, onLargeFile);
    EXPECT_EQ(outcome, Outcome(1, "Error (TALUX_Var): Can't write to file '" + path + "' \n",
                               "Error (TALUX_Var): '" + path + "' stays as it is \nwrite: File too large\n"));
    EXPECT_EQ(contents(other), "old");

    // Whatever fails then is told, or the file is whole.
    const Operation inPlace{VarSaveParams, 8000, {"parameter.ini"}, ""};
    int faults = 0;
    for (const int error : {EINTR, kShort, ENOSPC})
        for (int after = 0;; ++after, ++faults) {
            std::ofstream(file) << "old";
            const auto [result, output, errors] = perform(inPlace, error, after);
            if (*failedCall == '\0') break;
            EXPECT_EQ(fs::hard_link_count(file), 2);
            EXPECT_TRUE(holds(output + errors, "Error (TALUX_Var): ") || contents(file) == whole)
                << failedCall << after << output << errors;
            EXPECT_TRUE(
                contents(file) == whole || contents(file) == "old" ||
                (contents(file).substr(3) == whole.substr(3) && std::string_view(failedCall) == "write"));
        }
    EXPECT_GT(faults, 30);

    // No inode is left for a second file.
    fs::remove(other);
    for (const int error : {ENOSPC, EDQUOT}) {
        std::ofstream(file) << whole << "more";
        int after = 0;
        do
            perform(inPlace, error, after++);
        while (failedCall != std::string("openat") && *failedCall != '\0');
        EXPECT_EQ(contents(file), whole) << failedCall;
        EXPECT_EQ(steps.front().change, Change::write);
    }

    fs::remove(file);
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    const int reader = open(path.c_str(), O_RDONLY | O_NONBLOCK);
    EXPECT_EQ(VarSaveParamFile(path.data()), 1);
    std::string through(whole.size() + 1, '#');
    EXPECT_EQ(read(reader, through.data(), through.size()), static_cast<ssize_t>(whole.size()));
    EXPECT_EQ(through, whole + '#');
    close(reader);
}

TEST_F(Disk, FollowsLinksAlsoThoseThatDangle) {
    learn(kOperations[0]);
    fs::create_directory(directory / "sub");
    fs::create_symlink("sub/link", directory / "link");
    fs::create_symlink(directory / "sub/file", directory / "sub/link");
    fs::create_symlink("loop", directory / "loop");
    std::string path = directory / "link";
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(VarSaveParamFile(path.data()), 1);
        EXPECT_TRUE(fs::is_symlink(path) && fs::is_symlink(directory / "sub/link"));
        EXPECT_EQ(contents(directory / "sub/file"), fresh["parameter.ini"]);
        EXPECT_EQ(namesIn(directory / "sub"), (std::vector<std::string>{"file", "link"}));
    }
    for (const auto& [name, reason] : {std::pair("loop", "Too many levels of symbolic links"),
                                       {"sub", "Is a directory"},
                                       {"", "Is a directory"},
                                       {"none/file", "No such file or directory"},
                                       {"link/file", "Not a directory"}}) {
        path = directory / name;
        EXPECT_EQ(
            outcomeOf([&] { return VarSaveParamFile(path.data()); }),
            Outcome(0, "", "Error (TALUX_Var): Can't open file '" + path + "' \nfopen: " + reason + "\n"));
    }
    VarLong channel = 0;
    EXPECT_EQ(VarSaveIPConfigFile(kNoDirectory), 0); // no name, but a commit
    VarGetGlobalLongValue(6029, &channel);
    EXPECT_EQ(channel, 1);
}

} // namespace
