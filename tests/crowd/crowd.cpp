// A crowd works in one store: device program, scripts, shell, savers, loaders, the tool. Every 50 ms one of
// them is killed, and the disk fills and empties. Whoever reads a parameter file finds it whole, nobody
// hangs for ten seconds, groups and locks recover, and at the end files and store agree.
//
//   crowd SECONDS DEVICE TALUX SCRIPT     alone in an isolated root on a small disk
#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <mutex>
#include <random>
#include <sstream>
#include <string>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <ParamSystem/TALUX_Var.h>
#include <fcntl.h>
#include <talux/talux.hpp>

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto kLongest = 10s; // without a sign of life
constexpr auto kPatience = 3s; // after which a program is no longer killed
constexpr const char* kSigns[] = {"done", "refused: ", "Uearth is "}; // of life: lines that begin so
// What the other programs and the disk cause.
constexpr const char* kRefusals[] = {"does not hold",
                                     "No space left on device",
                                     "can't save parameter",
                                     "changed since by something else",
                                     "has changed meanwhile",
                                     "was interrupted",
                                     "no change to take back",
                                     "NOT STORED",
                                     "another change is being made"};

// ---- What was found ----

std::mutex mutex;
std::map<std::string, int> faults, answers;

void fault(const std::string& text) {
    const std::lock_guard lock(mutex);
    if (faults[text]++ == 0) std::printf("crowd: %s\n", text.c_str());
}

// ---- The actors ----

struct Actor {
    std::string name, command;
    int pid = 0, output = -1, rounds = 0, kills = 0, longest = 0;
    Clock::time_point since = Clock::now();
    std::string line = {}, last = {};

    void alive() {
        const auto waited = Clock::now() - since;
        longest = std::max(longest, static_cast<int>(waited / 1ms));
        since = Clock::now();
        ++rounds;
    }
};

void start(Actor& actor) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) std::abort();
    actor.pid = fork();
    if (actor.pid == 0) {
        setpgid(0, 0);
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        dup2(ends[1], 1);
        dup2(ends[1], 2);
        execl("/bin/sh", "sh", "-c", actor.command.c_str(), nullptr);
        _exit(127);
    }
    setpgid(actor.pid, actor.pid);
    close(ends[1]);
    fcntl(ends[0], F_SETFL, O_NONBLOCK);
    actor.output = ends[0];
}

void answered(Actor& actor, const std::string& text) {
    actor.alive();
    std::string plain = actor.name + ": ";
    for (const char c : text) // each number is the same
        if (!std::isdigit(static_cast<unsigned char>(c)))
            plain += c;
        else if (plain.back() != '#')
            plain += '#';
    const bool isExpected =
        std::ranges::any_of(kRefusals, [&](const char* refusal) { return text.find(refusal) != text.npos; });
    if (text.starts_with("refused: ") && !isExpected) fault(plain);
    const std::lock_guard lock(mutex);
    ++answers[plain];
}

void heard(Actor& actor) {
    const auto begins = [&](const char* sign) { return actor.line.starts_with(sign); };
    char block[4096];
    for (ssize_t size = 0; (size = read(actor.output, block, sizeof block)) > 0;)
        for (const char c : std::string_view(block, static_cast<std::size_t>(size))) {
            if (c != '\n') {
                actor.line += c;
                continue;
            }
            if (std::ranges::any_of(kSigns, begins)) answered(actor, actor.line);
            actor.last = std::move(actor.line);
            actor.line.clear();
        }
}

// What ends by itself ends with a status that is one of its own.
void ended(Actor& actor, int status) {
    heard(actor);
    close(actor.output);
    actor.line.clear();
    if (WIFEXITED(status) && WEXITSTATUS(status) <= 2) {
        answered(actor, WEXITSTATUS(status) == 0 ? "ended" : "refused: " + actor.last);
    } else if (!WIFSIGNALED(status) || WTERMSIG(status) != SIGKILL) {
        fault(actor.name + " ended with " + std::to_string(status));
    }
}

void stop(Actor& actor) {
    int status = 0;
    kill(-actor.pid, SIGKILL);
    waitpid(actor.pid, &status, 0);
    ended(actor, status);
    ++actor.kills;
}

// ---- The readers ----

std::string contents(const fs::path& path) {
    std::ifstream file(path);
    std::stringstream all;
    all << file.rdbuf();
    return all.str();
}

// The names of its lines; of a torn file other ones.
std::string namesOf(std::string text) {
    for (auto equals = text.find('='); equals != text.npos; equals = text.find('=', equals + 1))
        text.erase(equals + 1, text.find('\n', equals) - equals - 1);
    return text;
}

struct Whole {
    const char* start; // of the name
    std::string names;
};

// Which of the three files this is, or a copy of.
bool isRead(const std::vector<Whole>& files, const fs::path& path, int& seen) {
    const std::string name = path.filename();
    for (const Whole& file : files) {
        if (!name.starts_with(file.start) || !name.ends_with(".ini")) continue;
        const std::string text = contents(path);
        if (text.empty() && !fs::exists(path)) return true; // removed since it was listed
        ++seen;
        return namesOf(text) == file.names;
    }
    return true;
}

void readFiles(const std::vector<Whole>& files, const std::atomic<bool>& goesOn, int& seen) {
    while (goesOn) {
        std::error_code ignored;
        for (const auto& entry : fs::directory_iterator("/", ignored))
            if (!isRead(files, entry.path(), seen)) fault("torn: " + entry.path().filename().string());
        std::this_thread::sleep_for(1ms);
    }
}

// The group of the device: it writes record and values together.
constexpr talux::Measured<float> kPhases{"U1_prim"}, kFrequency{"f_grid"};
const auto& measurements() {
    static const talux::Group group("measurements", kPhases.run<3>(), kFrequency,
                                    talux::Record<talux::MessRecord01>{});
    return group;
}

// Another writer, so busy that it is often killed inside.
int publish() {
    talux::MessRecord01 record{};
    for (;; std::puts("done"), std::fflush(stdout), std::this_thread::sleep_for(5ms))
        for (int k = 0; k < 2000; ++k) {
            const auto value = static_cast<float>(++record.Cnt % 100000);
            record.U1p = record.U2p = record.U3p = record.f_grid = value;
            if (!measurements().write({value, value, value}, value, record)) return 3;
        }
}

void readGroup(const std::atomic<bool>& goesOn, int& seen) {
    auto last = Clock::now();
    std::uint32_t count = 0;
    while (goesOn) {
        std::array<float, 3> phases{};
        float frequency = 0;
        talux::MessRecord01 record{};
        if (measurements().read(phases, frequency, record)) {
            if (record.U1p != phases[0] || record.U3p != phases[2] || record.f_grid != frequency)
                fault("torn group");
            if (static_cast<std::uint32_t>(record.Cnt) != count) last = Clock::now(), ++seen;
            count = static_cast<std::uint32_t>(record.Cnt);
        }
        if (Clock::now() - last > kLongest) fault("the group does not recover"), last = Clock::now();
        std::this_thread::sleep_for(1ms);
    }
}

// ---- The disk ----

void removeCopies() {
    std::error_code ignored;
    for (const auto& entry : fs::directory_iterator("/", ignored))
        if (entry.path().filename().string().find("param_2") != std::string::npos)
            fs::remove(entry.path(), ignored);
}

void fillAndEmpty(const std::atomic<bool>& goesOn, int& fills) {
    while (goesOn) {
        const int file = open("/filler", O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
        const std::string block(1024, '#');
        while (write(file, block.data(), block.size()) > 0) {
        }
        fills += errno == ENOSPC;
        std::this_thread::sleep_for(200ms);
        close(file);
        fs::remove("/filler");
        removeCopies();
        std::this_thread::sleep_for(400ms);
    }
}

// ---- The play ----

void play(std::vector<Actor>& actors, std::chrono::seconds length) {
    std::mt19937 random{std::random_device{}()};
    for (Actor& actor : actors)
        start(actor);
    auto nextKill = Clock::now() + 50ms, nextLine = Clock::now() + 10s;
    for (const auto end = Clock::now() + length; Clock::now() < end;) {
        std::this_thread::sleep_for(5ms);
        for (Actor& actor : actors) {
            heard(actor);
            int status = 0;
            if (waitpid(actor.pid, &status, WNOHANG) == actor.pid) ended(actor, status), start(actor);
            if (Clock::now() - actor.since > kLongest) {
                fault(actor.name + " hangs");
                actor.since = Clock::now();
            }
        }
        if (Clock::now() > nextLine) std::puts("  at work"), nextLine += 10s;
        if (Clock::now() < nextKill) continue;
        nextKill += 50ms;
        Actor& actor = actors[random() % actors.size()];
        if (Clock::now() - actor.since > kPatience) continue;
        stop(actor);
        start(actor);
    }
    for (Actor& actor : actors)
        stop(actor);
}

// The first word that a command prints.
std::string answer(const std::string& command) {
    FILE* const pipe = popen(("timeout 10 " + command + " 2>&1").c_str(), "r");
    char word[80] = "";
    if (std::fscanf(pipe, "%79s", word) == EOF) word[0] = '\0';
    while (std::fgetc(pipe) != EOF) {
    }
    pclose(pipe);
    return word;
}

void compareAtTheEnd(const std::string& talux) {
    removeCopies();
    std::ofstream("/last") << "Uearth=42\nName=\"last\"\n";
    answer(talux + " undo --yes"); // what was interrupted
    answer(talux + " apply --save --yes /last");
    const std::string file = contents("/parameter.ini");
    if (file.find("TLX_Name=\"last\"\n") == file.npos) fault("the last change is not in the file");
    if (VarSaveAll() != 1) fault("the last save failed");
    const std::string live = answer(talux + " fingerprint live");
    std::printf("crowd: at the end %s\n", live.c_str());
    if (live.size() < 16 || answer(talux + " fingerprint /") != live) fault("the files are not what is live");
    answer(talux + " boot");
    if (answer(talux + " fingerprint live") != live) fault("a boot brings back something else");
    for (const auto& entry : fs::directory_iterator("/"))
        if (entry.path().extension() == ".tmp") fault("left: " + entry.path().string());
}

int report(const std::vector<Actor>& actors) {
    for (const Actor& actor : actors)
        std::printf("  %-10s %6d rounds, %4d kills, longest wait %d ms\n", actor.name.c_str(), actor.rounds,
                    actor.kills, actor.longest);
    for (const auto& [text, count] : answers)
        std::printf("  %6d %s\n", count, text.c_str());
    for (const auto& [text, count] : faults)
        std::printf("FAULT %d times: %s\n", count, text.c_str());
    return faults.empty() ? 0 : 1;
}

// The three files as they are at the beginning.
std::vector<Whole> wholeFiles() {
    char root[] = "";
    VarInit(root);
    LoadDefParamProperties();
    VarSetDefault();
    VarUpdateGlobalSpace();
    if (VarSaveAll() != 1) fault("nothing can be saved");
    return {{"param", namesOf(contents("/parameter.ini"))},
            {"sec_param", namesOf(contents("/sec_parameter.ini"))},
            {"ip_config", namesOf(contents("/ip_config.ini"))}};
}

std::vector<Actor> actorsWith(const std::string& self, const std::string& device, const std::string& talux,
                              const std::string& script) {
    return {{"device", "exec " + device},
            {"publisher", "exec " + self + " publish"},
            {"set", script + " set"},
            {"change", script + " change"},
            {"save", script + " save"},
            {"save all", script + " save_all"},
            {"load", script + " load"},
            {"shell", "printf 'TLX_Uearth=40\nupdate\nTLX_Uearth\nsave\n' | " + talux + " shell"},
            {"apply", talux + " apply --save --yes /plan || " + talux + " undo --yes"}};
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && argv[1] == std::string_view("publish")) return publish();
    const long length = argc > 4 ? std::strtol(argv[1], nullptr, 10) : 0;
    if (length <= 0) return std::fputs("crowd SECONDS DEVICE TALUX SCRIPT\n", stderr), 2;
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
    const std::vector<Whole> files = wholeFiles();
    std::ofstream("/plan") << "Uearth=35\nqu2_Ice=7\n";
    std::vector<Actor> actors = actorsWith(argv[0], argv[2], argv[3], "exec " + std::string(argv[4]));

    std::atomic<bool> goesOn = true;
    int filesSeen = 0, groupsSeen = 0, fills = 0;
    std::thread disk([&] { fillAndEmpty(goesOn, fills); });
    std::thread fileReader([&] { readFiles(files, goesOn, filesSeen); });
    std::thread groupReader([&] { readGroup(goesOn, groupsSeen); });
    play(actors, std::chrono::seconds(length));
    goesOn = false;
    for (std::thread* const each : {&disk, &fileReader, &groupReader})
        each->join();
    compareAtTheEnd(argv[3]);
    std::printf("crowd: %d files and %d writes of the group read, the disk was full %d times\n", filesSeen,
                groupsSeen, fills);
    if (filesSeen == 0 || groupsSeen == 0 || fills == 0) fault("something was never seen");
    return report(actors);
}
