// Linked into every test program: a test fails if it leaves the process in another state, such as with a lock
// of the store still held; also if the module closes a file that a program started meanwhile would have
// inherited, or a thread waits for a lock for a minute.
#include "Isolation.h"

#include "ParamSystem/dictionary/Types.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <dlfcn.h>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <pthread.h>
#include <sstream>
#include <string>
#include <sys/sem.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Things = std::vector<std::string>;

template <class Use>
void eachLine(const char* path, const Use& use) {
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);)
        use(line);
}

std::string targetOf(const fs::path& link) {
    std::error_code none;
    return fs::read_symlink(link, none).string();
}

void addOpenFiles(Things& things) {
    for (const auto& entry : fs::directory_iterator("/proc/self/fd"))
        if (const std::string name = targetOf(entry.path()); !name.ends_with("/fd"))
            things.push_back("descriptor " + entry.path().filename().string() + " of " + name);
}

// Of groups: who writes, and how many use each.
void addSemaphores(Things& things) {
    eachLine("/proc/sysvipc/sem", [&](const std::string& line) {
        std::istringstream fields(line);
        std::string key, mode;
        int id = 0, count = 0;
        fields >> key >> id >> mode >> count; // all zero in the headline
        for (int each = 0; each < count; ++each)
            if (semctl(id, each, GETVAL) > 0)
                things.push_back("semaphore " + std::to_string(each) + " of " + key);
    });
}

// The locks of the store, the only ones with priority inheritance, in the order in which the module makes
// them before main: of the global space for all kinds, of the temporary space for all but records.
constinit pthread_mutex_t* locks[2 * talux::kKindCount] = {};

std::string nameOf(std::size_t lock) {
    return "lock " + std::to_string(lock % talux::kKindCount) +
           (lock < talux::kKindCount ? " of the global space" : " of the temporary space");
}

void addHeldLocks(Things& things) {
    for (std::size_t k = 0; k < std::size(locks) && locks[k] != nullptr; ++k)
        if (pthread_mutex_trylock(locks[k]) == 0)
            pthread_mutex_unlock(locks[k]);
        else
            things.push_back(nameOf(k));
}

// A segment is attached by the module and by the test, once each.
void addAttachments(Things& things) {
    std::map<std::string, int> attachments;
    eachLine("/proc/self/maps", [&](const std::string& line) {
        std::istringstream fields(line);
        std::string place, rights, offset, device, id, name;
        fields >> place >> rights >> offset >> device >> id >> name;
        if (name.starts_with("/SYSV") && ++attachments[id] > 2) things.push_back("attached " + name);
    });
}

void addSignals(Things& things) {
    sigset_t blocked;
    pthread_sigmask(SIG_BLOCK, nullptr, &blocked);
    struct sigaction action;
    for (int each = 1; each < NSIG; ++each) {
        if (sigismember(&blocked, each) == 1) things.push_back("blocked signal " + std::to_string(each));
        if (sigaction(each, nullptr, &action) == 0 && action.sa_handler != SIG_DFL)
            things.push_back("handler of signal " + std::to_string(each));
    }
}

Things thingsOfTheProcess() {
    Things things{"folder " + fs::current_path().string(),
                  std::string("locale ") + std::setlocale(LC_ALL, nullptr) +
                      (uselocale(nullptr) == LC_GLOBAL_LOCALE ? "" : ", the thread has its own")};
    addOpenFiles(things);
    addSemaphores(things);
    addAttachments(things);
    addSignals(things);
    addHeldLocks(things);
    eachLine("/proc/self/status", [&](const std::string& line) {
        if (line.starts_with("Umask:")) things.push_back(line);
    });
    eachLine("/proc/locks", [&, own = " " + std::to_string(getpid()) + " "](const std::string& line) {
        if (line.find(own) != line.npos) things.push_back("lock" + line.substr(line.find(':') + 1));
    });
    if (talux_test::isolated())
        for (const auto& entry : fs::directory_iterator("/tmp"))
            things.push_back("file " + entry.path().string());
    siginfo_t child{};
    if (waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT) == 0) things.emplace_back("a child");
    std::sort(things.begin(), things.end());
    return things;
}

class Watcher : public testing::EmptyTestEventListener {
    Things before;

    void OnTestStart(const testing::TestInfo& /*test*/) override { before = thingsOfTheProcess(); }
    void OnTestEnd(const testing::TestInfo& /*test*/) override {
        const Things after = thingsOfTheProcess();
        tell("left over: ", after, before);
        tell("gone: ", before, after);
    }
    static void tell(const char* what, const Things& all, const Things& without) {
        Things rest;
        std::set_difference(all.begin(), all.end(), without.begin(), without.end(), std::back_inserter(rest));
        for (const std::string& each : rest)
            ADD_FAILURE() << what << each;
    }
};

[[maybe_unused]] const bool kWatches = [] {
    testing::UnitTest::GetInstance()->listeners().Append(new Watcher);
    return true;
}();

void expectOwn(int descriptor, const void* caller) {
    Dl_info place{};
    const int flags = fcntl(descriptor, F_GETFD);
    if (flags < 0 || (flags & FD_CLOEXEC) != 0 || dladdr(caller, &place) == 0) return;
    const bool isOfModule =
        std::string_view(place.dli_fname).find("lib_talux_lua.so") != std::string_view::npos;
    const auto isOfCounters = [=] { // which the compiler's runtime writes
        return targetOf("/proc/self/fd/" + std::to_string(descriptor)).ends_with(".gcda");
    };
    if (isOfModule && !isOfCounters())
        ADD_FAILURE() << "a program started meanwhile would have inherited what the module closes";
}

} // namespace

extern "C" {
// A test that closes in its own way takes the place of these.
[[gnu::weak]] int close(int descriptor) {
    expectOwn(descriptor, __builtin_return_address(0));
    return reinterpret_cast<int (*)(int)>(dlsym(RTLD_NEXT, "close"))(descriptor);
}
[[gnu::weak]] int fclose(FILE* stream) {
    expectOwn(fileno(stream), __builtin_return_address(0));
    return reinterpret_cast<int (*)(FILE*)>(dlsym(RTLD_NEXT, "fclose"))(stream);
}
[[gnu::weak]] int pthread_mutex_init(pthread_mutex_t* lock, const pthread_mutexattr_t* attributes) noexcept {
    int protocol = PTHREAD_PRIO_NONE;
    if (attributes != nullptr) pthread_mutexattr_getprotocol(attributes, &protocol);
    const auto place = std::find_if(std::begin(locks), std::end(locks),
                                    [=](const auto* known) { return known == lock || known == nullptr; });
    if (protocol == PTHREAD_PRIO_INHERIT && place != std::end(locks)) *place = lock;
    return reinterpret_cast<decltype(&pthread_mutex_init)>(dlsym(RTLD_NEXT, "pthread_mutex_init"))(
        lock, attributes);
}
[[gnu::weak]] int pthread_mutex_lock(pthread_mutex_t* lock) noexcept {
    if (pthread_mutex_trylock(lock) == 0) return 0;
    timespec end;
    clock_gettime(CLOCK_REALTIME, &end);
    end.tv_sec += 60;
    const int error = pthread_mutex_timedlock(lock, &end);
    if (error != ETIMEDOUT) return error;
    const auto known = std::find(std::begin(locks), std::end(locks), lock);
    std::fprintf(stderr, "never given back: %s\n",
                 known == std::end(locks) ? "a lock"
                                          : nameOf(static_cast<std::size_t>(known - locks)).c_str());
    std::abort();
}
}
