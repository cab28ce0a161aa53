// What a save leaves on the disk when a call fails, when the power fails, when it is killed, while another
// program reads, and where a file cannot be replaced.
#include "DiskCalls.h"
#include "Messages.h"

#include <csignal>
#include <grp.h>
#include <map>
#include <span>
#include <sys/resource.h>
#include <sys/wait.h>

namespace {

using namespace talux_test;

struct Operation {
    int (*run)();
    int flag;
    std::vector<std::string> files; // that it writes, in this order
    std::string channel;            // what the first one has for it
    bool givesReason = false;       // result 0 when everything is written, else why not
};
const std::vector<std::string> kNormalFiles = {"parameter.ini", kDatedCopy},
                               kSecurityFiles = {"sec_parameter.ini", "sec_" + kDatedCopy},
                               kIpFiles = {"ip_config.ini"};
const Operation kOperations[] = {
    {VarSaveParams, 8000, kNormalFiles, "TLX_channel=1\n"},
    {VarSaveSecParams, 8002, kSecurityFiles, ""},
    {VarSaveAll,
     8001,
     {kNormalFiles[0], kNormalFiles[1], kSecurityFiles[0], kSecurityFiles[1], kIpFiles[0]},
     "TLX_channel=2\n"},
    {VarSaveIPConfig, 8001, kIpFiles, ""},
    {[] { return VarSaveError(SavedFile::parameters); }, 8000, kNormalFiles, "TLX_channel=1\n", true},
    {[] { return VarSaveError(SavedFile::security); }, 8002, kSecurityFiles, "", true},
    {[] { return VarSaveError(SavedFile::addresses); }, 8001, kIpFiles, "", true},
    {VarLoadIPConfig, 8001, kIpFiles, ""},
};

bool holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

struct Disk : InDirectory {
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

    // The old files exist; other values are live, and again others are pending.
    void begin() {
        for (const std::string& name : namesIn(directory))
            fs::remove(directory / name);
        for (const auto& [name, whole] : old)
            write(name, whole);
        change(2);
        VarUpdateGlobalSpace();
        change(1);
        for (const int flag : {8000, 8001, 8002})
            VarSetGlobalBoolValue(flag, 0);
    }

    // The call after so many others fails with `error`.
    Outcome perform(const Operation& operation, int error = 0, int after = -1) {
        fault = error, callsBeforeFault = after, failedCall = "";
        steps.clear(), shared.clear();
        onPrinted = [this](std::string line) {
            line.erase(line.find_last_not_of(" \n") + 1);
            if (const auto path = line.find(directory); path != line.npos)
                line.erase(path, directory.string().size() + 1);
            note("say " + line);
        };
        const auto descriptors = namesIn("/proc/self/fd").size();
        push({});
        Outcome outcome = outcomeOf(operation.run);
        push({});
        watching = false, onPrinted = nullptr;
        EXPECT_EQ(namesIn("/proc/self/fd").size(), descriptors);
        return outcome;
    }

    std::vector<std::string> done() const {
        std::vector<std::string> all;
        for (const Step& step : steps)
            all.push_back(step.what);
        return all;
    }

    void learn(const Operation& operation) {
        begin();
        EXPECT_EQ(std::get<0>(perform(operation)), operation.givesReason ? 0 : 1);
        fresh.clear();
        for (const std::string& name : operation.files)
            fresh[name] = contents(directory / name);
        EXPECT_TRUE(holds(fresh[operation.files[0]], operation.channel));
    }

    // Every file is the old or the new one, whole; there are no others. Returns whether all are new.
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

enum class Then { goesOn, nextFile, ends };
struct Rule {
    std::string step;
    std::vector<std::string> onFailure;
    Then then;
};
const std::string kError = "say Error (TALUX_Var): ", kNotOpened = kError + "Can't open file '{}'",
                  kNotGiven = kError + "Can't set owner and rights of file '{}'",
                  kNotWritten = kError + "Can't write to file '{}'", kStays = kError + "'{}' stays as it is";

// What a save does with each file, in this order, and what it does then where that fails.
const Rule kRules[] = {
    {"open {}", {kNotOpened, "say fopen: {reason}"}, Then::ends},
    {"open directory", {kNotOpened, "say fopen: {reason}"}, Then::ends},
    {"make", {kNotOpened, "say fopen: {reason}"}, Then::ends},
    {"give 0:{group}", {kNotGiven, "say chown: {reason}"}, Then::goesOn},
    {"allow 775", {kNotGiven, "say chmod: {reason}"}, Then::goesOn},
    {"write", {"remove", kNotWritten, kStays, "say write: {reason}"}, Then::nextFile},
    {"sync", {"remove", kNotWritten, kStays, "say fsync: {reason}"}, Then::ends},
    {"rename {}", {"remove", kNotWritten, kStays, "say rename: {reason}"}, Then::ends},
    {"sync directory", {kNotWritten, "say fsync: {reason}"}, Then::ends},
};

std::string raiseOf(const Operation& operation) {
    return "raise " + std::to_string(operation.flag);
}

std::string filled(std::string text, const std::string& file, int error) {
    const std::string group = file.starts_with("sec_") ? "101" : "100", reason = std::strerror(error);
    for (const auto& [gap, filling] : {std::pair("{}", file), {"{group}", group}, {"{reason}", reason}})
        if (const auto place = text.find(gap); place != text.npos) text.replace(place, strlen(gap), filling);
    return text;
}

// The steps of an operation of which the one with this number fails, and its result.
std::pair<std::vector<std::string>, int> order(const Operation& operation, int failing, int error) {
    std::vector<std::string> all;
    const bool isForAll = operation.files.size() > 2;
    const int bad = operation.givesReason ? error : 0;
    int result = operation.givesReason ? 0 : 1;
    for (const std::string& file : operation.files) {
        const bool isAddress = file == "ip_config.ini", isCopy = file.ends_with(kDatedCopy);
        if (isForAll ? isAddress : !isCopy) all.push_back("commit");
        for (const Rule& rule : kRules) {
            if (isAddress && rule.then == Then::goesOn) continue; // it leaves the file as it is
            const bool hasFailed = failing-- == 0;
            all.push_back(filled(rule.step, file, error) + (hasFailed ? "!" : ""));
            if (!hasFailed) continue;
            for (const std::string& step : rule.onFailure)
                if (!isCopy || step != kStays) all.push_back(filled(step, file, error));
            if (rule.then == Then::nextFile) {
                if (operation.givesReason) result = error;
                break;
            }
            if (rule.then == Then::goesOn) continue;
            if (isCopy && !isForAll) all.push_back(raiseOf(operation)); // the file itself is new
            return {all, bad};
        }
    }
    all.push_back(raiseOf(operation));
    return {all, result};
}

TEST_F(Disk, KeepsTheOldFileOrTheNewOneWhateverFails) {
    int faults = 0;
    for (const Operation& operation : kOperations) {
        const bool loads = operation.run == VarLoadIPConfig; // and saves what it loaded, the old file
        learn(loads ? kOperations[3] : operation);
        for (const int error : {EIO, EINTR, kShort, ENOSPC, EACCES, EPERM, EROFS, EBUSY, EINVAL}) {
            for (int after = 0, failing = 0;; ++after, ++faults) {
                begin();
                const int result = std::get<0>(perform(operation, error, after));
                if (*failedCall == '\0') {
                    EXPECT_TRUE(loads || error == kShort ||
                                order(operation, failing, 0) == order(operation, -1, 0));
                    break;
                }
                SCOPED_TRACE(operation.files[0] + ": " + failedCall + " " + std::to_string(error));
                const bool all = isFresh(operation);
                const auto now = done();
                const auto broken = std::ranges::find(now, '!', [](const auto& step) { return step.back(); });
                const std::string failed = broken == now.end() ? "" : *broken;
                const bool isQuiet =
                    std::ranges::none_of(now, [](const auto& step) { return step.starts_with("say"); });
                const int number = failed.empty() ? -1 : failing++;
                // A directory that lets nothing be made or exchanged has its files written in place.
                const bool refuses = error == EACCES || error == EPERM || error == EROFS || error == EBUSY;
                // A file system that cannot sync, or has no such owners.
                const bool cannot = !loads && ((error == EINVAL && failed.starts_with("sync")) ||
                                               ((error == EINVAL || error == EPERM) &&
                                                (failed.starts_with("give") || failed.starts_with("allow"))));
                const bool isRepeated = // when a signal interrupts it
                    failed == "write!" || failed.starts_with("sync") ||
                    (failed.starts_with("open ") && failed != "open directory!");
                EXPECT_TRUE(error != EINTR || (loads ? result == 1 : isQuiet || !isRepeated));
                const bool passes =
                    failed.empty() || error == EINTR || (error == ENOSPC && failed == "make!") ||
                    (refuses &&
                     (failed == "make!" || failed == "open directory!" || holds(failed, "rename")));
                if (cannot || ((isQuiet || (error != EINTR && !loads)) && passes &&
                               (loads || !failed.empty() || error == kShort))) {
                    EXPECT_TRUE(isQuiet && result == order(operation, -1, 0).second &&
                                (loads || (all && now.back() == raiseOf(operation))))
                        << "result " << result << ", steps " << testing::PrintToString(now);
                } else if (!loads) {
                    EXPECT_EQ(std::pair(now, result), order(operation, number, error));
                }
            }
        }
    }
    EXPECT_GT(faults, 1000);
}

TEST_F(Disk, LoadsNoPartOfALineWhenItFails) {
    std::string path = write("file", "TLX_channel=3\n" + std::string(4068, '#') + "\nTLX_channel=11\n");
    const auto load = [&] {
        watching = true, fault = kDiskError, callsBeforeFault = 2; // after the block that ends with "=1"
        VarLoadFile(path.data(), 0);
    };
    expectEnd(load, "\nError (TALUX_Var): Can't read source file '" + path + "'\n");
    VarLong channel = 0;
    VarGetLongValue(6029, &channel);
    EXPECT_EQ(channel, 3);
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
        if (step.what == "make") bytes.clear(), isSynced = false;
        if (step.what == "write") bytes += step.data, isSynced = false;
        if (step.what == "sync") isSynced = true;
        unsettled.push_back(step);
        if (step.what != "sync directory") return;
        for (const Step& change : unsettled)
            rename(names, change);
        unsettled.clear();
    }

    static void rename(std::map<std::string, ino_t>& names, const Step& step) {
        if (step.what == "make") names[step.name] = step.file;
        if (!step.newName.empty()) names[step.newName] = names[step.name], names.erase(step.name);
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
        write(name, "TLX_channel=9\n");
    const fs::path foreign = directory / ".talux-save-1.tmp"; // which no save has left
    fs::remove(foreign);                                      // but perhaps one of the killed, under its name
    ASSERT_EQ(mkfifo(foreign.c_str(), 0600), 0);
    EXPECT_EQ(save(0), 1);
    EXPECT_EQ(contents(path), whole[0]);
    for (const auto& [name, content] : old)
        fs::remove(directory / name);
    EXPECT_EQ(namesIn(directory), (std::vector<std::string>{".talux-save-1.tmp", "file"}));
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
    slept = kReally;
    for (const int other : {others[0], others[1], others[3]})
        close(other);

    for (const int lock : {LOCK_UN, LOCK_EX}) { // another save took the new file for a leftover
        int makes = 0;
        onStep = [&] {
            if (steps.empty() || steps.back().what != "make") return;
            if (++makes > 1) return void(close(others[0]));
            const fs::path name = directory / steps.back().name;
            others[0] = open(name.c_str(), O_RDONLY);
            EXPECT_EQ(flock(others[0], lock), 0);
            fs::remove(name);
        };
        EXPECT_EQ(std::get<0>(perform(kOperations[3])), 1);
        EXPECT_EQ(makes, 2);
    }
    onStep = nullptr;
}

// ---- What cannot be replaced, and links ----

TEST_F(Disk, WritesInPlaceWhatCannotBeReplaced) {
    learn(kOperations[0]);
    const std::string whole = fresh["parameter.ini"];
    const fs::path file = directory / "parameter.ini", other = directory / "other";
    std::string path = file;

    fs::create_hard_link(file, other);
    write("parameter.ini", "old");
    EXPECT_EQ(VarSaveParamFile(path.data()), 1);
    EXPECT_TRUE(contents(other) == whole && fs::hard_link_count(file) == 2);
    const auto onLargeFile = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit;
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit small{100, limit.rlim_max};
    write("parameter.ini", "old");
    setrlimit(RLIMIT_FSIZE, &small);
    const Outcome outcome = outcomeOf([&] { return VarSaveParamFile(path.data()); });
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, onLargeFile);
    EXPECT_EQ(outcome, Outcome(1, "Error (TALUX_Var): Can't write to file '" + path + "' \n",
                               "Error (TALUX_Var): '" + path + "' stays as it is \nwrite: File too large\n"));
    EXPECT_EQ(contents(other), "old");

    // Whatever fails then is reported, or the file is whole.
    const Operation inPlace{VarSaveParams, 8000, {"parameter.ini"}, ""};
    int faults = 0, closes = 0;
    for (const int error : {EINTR, kShort, ENOSPC})
        for (int after = 0;; ++after, ++faults) {
            write("parameter.ini", "old");
            const auto [result, output, errors] = perform(inPlace, error, after);
            if (*failedCall == '\0') break;
            EXPECT_EQ(fs::hard_link_count(file), 2);
            EXPECT_TRUE(error != EINTR || !holds(output, path)) << failedCall;
            closes += failedCall == std::string("close") && holds(errors, "write: ");
            EXPECT_TRUE(holds(output + errors, "Error (TALUX_Var): ") || contents(file) == whole)
                << failedCall << after << output << errors;
            EXPECT_TRUE(
                contents(file) == whole || contents(file) == "old" ||
                (contents(file).substr(3) == whole.substr(3) && std::string_view(failedCall) == "write"));
        }
    EXPECT_GT(faults, 30);
    EXPECT_EQ(closes, 1) << "the disk may be full when it closes";

    // No inode is left for a second file.
    fs::remove(other);
    for (const int error : {ENOSPC, EDQUOT}) {
        std::ofstream(file) << whole << "more";
        int after = 0;
        do
            perform(inPlace, error, after++);
        while (failedCall != std::string("openat") && *failedCall != '\0');
        EXPECT_EQ(contents(file), whole) << failedCall;
        // What goes beyond the old contents comes first.
        auto first = done();
        std::erase(first, "give 0:100"); // where it could not be given when it was made
        first.resize(6);
        EXPECT_EQ(first, (std::vector<std::string>{"open parameter.ini", "open directory", "make!", "write",
                                                   "cut", "sync"}));
    }

    fs::remove(file);
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    const int reader = open(path.c_str(), O_RDONLY | O_NONBLOCK);
    EXPECT_EQ(VarSaveParamFile(path.data()), 1);
    std::string through(whole.size() + 1, '#');
    EXPECT_EQ(read(reader, through.data(), through.size()), static_cast<ssize_t>(whole.size()));
    EXPECT_EQ(through, whole + '#');
    EXPECT_EQ(statusOf(path).st_mode & 07777, 0600U) << "it is given away";
    close(reader);
}

// Who saves whose file: the owner afterwards, and whether it is a new file.
TEST_F(Disk, TakesAFileFromNobody) {
    constexpr uid_t kNone = 9999;
    constexpr auto kIps = VarSaveIPConfig, kNormal = VarSaveParams;
    const struct {
        int (*save)();
        uid_t owner, group;
        mode_t mode;
        uid_t user, memberOf; // the saver and its second group
        bool mayGive;
        uid_t ownerThen, groupThen;
        bool isReplaced;
    } cases[] = {
        {kIps, 1000, 1000, 0600, 1000, kNone, true, 1000, 1000, true},
        {kIps, 1000, 100, 0640, 1000, kNone, true, 1000, 100, false},
        {kIps, 1000, 100, 0640, 1000, 100, true, 1000, 100, true},
        {kIps, 7, 1000, 0660, 1000, kNone, true, 7, 1000, false},
        {kIps, 7, 9, 0600, 0, kNone, true, 7, 9, true},
        {kIps, 7, 9, 0600, 0, kNone, false, 7, 9, false},
        {kNormal, 1000, 1000, 0600, 1000, kNone, true, 1000, 1000, true},
        {kNormal, 0, 100, 0775, 1000, 100, true, 0, 100, false},
        {kNormal, 7, 9, 0600, 0, kNone, true, 0, 100, true},
        {kNormal, 7, 9, 0600, 0, kNone, false, 7, 9, false},
    };
    fs::permissions(directory, fs::perms::all);
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message() << &each - cases);
        begin();
        const bool isAddress = each.save == kIps;
        const fs::path file = directory / (isAddress ? "ip_config.ini" : "parameter.ini");
        if (geteuid() != 0 || chown(file.c_str(), each.owner, each.group) != 0)
            GTEST_SKIP() << "nothing can be given away here";
        chmod(file.c_str(), each.mode);
        const struct stat before = statusOf(file);
        const gid_t second = each.memberOf;
        mayGive = each.mayGive;
        EXPECT_EQ(setgroups(second == kNone ? 0 : 1, &second) + setegid(each.user) + seteuid(each.user), 0);
        const Outcome outcome = perform({each.save, 0, {}, ""});
        EXPECT_EQ(seteuid(0) + setegid(0) + setgroups(0, nullptr), 0);
        mayGive = true;
        EXPECT_EQ(outcome, Outcome(1, "", ""));
        const struct stat after = statusOf(file);
        EXPECT_EQ(std::tuple(after.st_uid, after.st_gid, after.st_ino != before.st_ino),
                  std::tuple(each.ownerThen, each.groupThen, each.isReplaced));
        EXPECT_EQ(after.st_mode & 07777,
                  isAddress || (each.user != 0 && each.owner != each.user) ? each.mode : 0775U);
    }
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
    fs::create_symlink("plain", directory / "bare");
    fs::current_path(directory);
    EXPECT_EQ(VarSaveParamFile(std::string("bare").data()), 1);
    fs::current_path("/");
    EXPECT_EQ(contents(directory / "plain"), fresh["parameter.ini"]);
    // Only the kernel follows a link that is too long for a path together with the directory.
    std::string around;
    while (around.size() < 4085)
        around += "./";
    fs::create_symlink(around + "sub/file", directory / "long");
    std::ofstream(directory / "sub/file") << "old";
    EXPECT_EQ(VarSaveParamFile((directory / "long").string().data()), 1);
    EXPECT_EQ(contents(directory / "sub/file"), fresh["parameter.ini"]);
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
