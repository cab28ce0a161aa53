// The machine around the module, simulated: commands, pipes, clock, system log, board and interfaces are
// recorded instead of used. A test program includes this once: its functions take the place of the C
// library's for the module, too.
#ifndef TALUX_TEST_MACHINE_H
#define TALUX_TEST_MACHINE_H

#include <arpa/inet.h>
#include <cerrno>
#include <csetjmp>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <dlfcn.h>
#include <functional>
#include <map>
#include <net/if.h>
#include <optional>
#include <string>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/utsname.h>
#include <syslog.h>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

namespace talux_test {

struct Machine {
    std::vector<std::string> events;    // in their order, as note() has them
    std::function<std::string()> stamp; // what an event is marked with; empty: with nothing
    std::string errors;                 // what ErrorStream caught, commands among it as "$ command"
    std::time_t now = 0;                // 0: the real time
    std::string board = "x86_64";       // empty: cannot be found out
    std::optional<std::string> pipe;    // what a command writes; none: pipes are real
    bool pipesFail = false;
    bool hasSignals = false; // reads from a pipe are interrupted now and then
    int openPipes = 0;
    std::map<std::string, std::string> addresses; // "eth0:1", its netmask at "eth0:1/"
    bool socketsFail = false;
    std::jmp_buf* processEnd = nullptr; // where exit() jumps to; null: the process ends
    std::size_t allocations = 0;        // of memory by others than the machine
    int working = 0;                    // calls into the machine that are not over
};
inline Machine machine;

// Notes what happened; the machine's own need of memory does not count.
inline void note(const std::string& event) {
    if (event.starts_with("$ ")) machine.errors += event + "\n";
    machine.events.push_back(event + (machine.stamp ? machine.stamp() : ""));
}
struct Working {
    Working() { ++machine.working; }
    ~Working() { --machine.working; }
};

template <typename Function>
Function* real(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

// The number of allocations while `action` ran; 0 under a sanitizer with its own heap.
template <typename Action>
std::size_t allocationsOf(const Action& action) {
    const std::size_t before = machine.allocations;
    action();
    return machine.allocations - before;
}

// A stream that reads a text, interrupted by signals now and then if the machine has some.
inline FILE* reader(const std::string& text) {
    const auto take = [](void* from, char* to, std::size_t size) -> ssize_t {
        const Working working;
        auto& rest = *static_cast<std::string*>(from);
        static bool isInterrupted = false;
        isInterrupted = machine.hasSignals && rest.size() % 3 == 1 && !isInterrupted;
        if (isInterrupted) return errno = EINTR, -1;
        size = rest.copy(to, size);
        rest.erase(0, size);
        return static_cast<ssize_t>(size);
    };
    const auto close = [](void* from) { return delete static_cast<std::string*>(from), 0; };
    FILE* const stream = fopencookie(new std::string(text), "r", {take, nullptr, nullptr, close});
    std::setvbuf(stream, nullptr, _IONBF, 0);
    return stream;
}

// What is written to the error stream meanwhile goes to machine.errors.
class ErrorStream {
public:
    // With _IOFBF a line that is not flushed comes too late.
    explicit ErrorStream(int buffering = _IONBF) {
        const auto put = [](void*, const char* from, std::size_t size) -> ssize_t {
            const Working working;
            machine.errors.append(from, size);
            return static_cast<ssize_t>(size);
        };
        static char buffer[BUFSIZ];
        stderr = fopencookie(nullptr, "w", {nullptr, put, nullptr, nullptr});
        std::setvbuf(stderr, buffer, buffering, sizeof buffer);
    }
    ~ErrorStream() {
        std::fclose(stderr);
        stderr = own;
    }

private:
    FILE* const own = stderr;
};

// A new machine; at the end all its pipes must be closed.
template <class Base = testing::Test>
struct OnMachine : Base {
    OnMachine() { machine = {}; }
    ~OnMachine() override {
        EXPECT_EQ(machine.openPipes, 0);
        machine = {};
    }
};

} // namespace talux_test

// NOLINTBEGIN(misc-definitions-in-headers): included once
extern "C" {

int system(const char* command) {
    const talux_test::Working working;
    talux_test::note("$ " + std::string(command));
    return 0;
}

FILE* popen(const char* command, const char* mode) {
    using talux_test::machine;
    const talux_test::Working working;
    EXPECT_STREQ(mode, "re") << "a program started meanwhile would inherit the pipe";
    if (!machine.pipe && !machine.pipesFail)
        return talux_test::real<FILE*(const char*, const char*)>("popen")(command, mode);
    talux_test::note("| " + std::string(command));
    if (machine.pipesFail) return errno = EMFILE, nullptr;
    ++machine.openPipes;
    return talux_test::reader(*machine.pipe);
}

int pclose(FILE* stream) {
    using talux_test::machine;
    const talux_test::Working working;
    if (!machine.pipe) return talux_test::real<int(FILE*)>("pclose")(stream);
    talux_test::note("closed");
    --machine.openPipes;
    return std::fclose(stream);
}

std::time_t time(std::time_t* seconds) noexcept {
    timespec now{talux_test::machine.now, 0};
    if (now.tv_sec == 0) clock_gettime(CLOCK_REALTIME, &now);
    if (seconds != nullptr) *seconds = now.tv_sec;
    return now.tv_sec;
}

int clock_settime(clockid_t, const timespec* time) noexcept {
    const talux_test::Working working;
    talux_test::note("clock " + std::to_string(time->tv_sec));
    return 0;
}

void vsyslog(int priority, const char* format, std::va_list arguments) {
    const talux_test::Working working;
    char text[4000];
    std::vsnprintf(text, sizeof text, format, arguments);
    talux_test::note("log " + std::to_string(priority) + " " + text);
}
void __vsyslog_chk(int priority, int, const char* format, std::va_list arguments) {
    vsyslog(priority, format, arguments);
}

int uname(utsname* system) noexcept {
    *system = {};
    talux_test::machine.board.copy(system->machine, sizeof system->machine - 1);
    return talux_test::machine.board.empty() ? -1 : 0;
}

int socket(int domain, int type, int protocol) noexcept {
    return talux_test::machine.socketsFail ? -1
                                           : static_cast<int>(syscall(SYS_socket, domain, type, protocol));
}

int ioctl(int descriptor, unsigned long request, ...) noexcept {
    std::va_list arguments;
    va_start(arguments, request);
    void* const argument = va_arg(arguments, void*);
    va_end(arguments);
    if (request != SIOCGIFADDR && request != SIOCGIFNETMASK)
        return static_cast<int>(syscall(SYS_ioctl, descriptor, request, argument));
    auto* const record = static_cast<ifreq*>(argument);
    sockaddr_in answer{AF_INET, 0, {}, {}};
    const std::string name = record->ifr_name + std::string(request == SIOCGIFNETMASK ? "/" : "");
    const std::string& address = talux_test::machine.addresses[name];
    if (record->ifr_addr.sa_family != AF_INET || inet_aton(address.c_str(), &answer.sin_addr) == 0) return -1;
    std::memcpy(&record->ifr_addr, &answer, sizeof answer);
    return 0;
}

void exit(int status) noexcept {
    using talux_test::machine;
    if (machine.processEnd == nullptr) talux_test::real<void(int)>("exit")(status);
    {
        const talux_test::Working working;
        talux_test::note("exit " + std::to_string(status & 255));
    }
    std::longjmp(*machine.processEnd, 1);
}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
void* __libc_malloc(std::size_t);
void* __libc_calloc(std::size_t, std::size_t);
void* __libc_realloc(void*, std::size_t);
void* malloc(std::size_t size) {
    talux_test::machine.allocations += talux_test::machine.working == 0;
    return __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) {
    talux_test::machine.allocations += talux_test::machine.working == 0;
    return __libc_calloc(count, size);
}
void* realloc(void* memory, std::size_t size) {
    talux_test::machine.allocations += talux_test::machine.working == 0;
    return __libc_realloc(memory, size);
}
#endif
}

// NOLINTEND(misc-definitions-in-headers)

#endif
