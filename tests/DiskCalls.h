// The disk calls of a save and what it prints, in one list; any of these calls can be made to fail. A
// test program includes this once: its functions take the place of the C library's for the module, too.
#ifndef TALUX_TEST_DISKCALLS_H
#define TALUX_TEST_DISKCALLS_H

#include "Files.h"
#include "tools/Strings.h"

#include <cstdarg>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace talux_test {

constexpr int kShort = -1;          // no error: half of the bytes only
constexpr int kDiskError = EUCLEAN; // also of a read, after which the process goes on
inline constinit bool watching = false, mayGive = true;
inline constinit int fault = 0, callsBeforeFault = -1;
inline constinit const char* failedCall = "";
inline std::function<void()> onStep;

constexpr long kReally = -1;
inline constinit long slept = kReally; // milliseconds of a clock that goes on with sleeps only
inline std::function<void()> onSleep;  // what other programs do meanwhile

struct Step {
    std::string what; // "call detail"; with a "!" at its end it failed
    ino_t file = 0;
    std::string name = {}, newName = {}, data = {};
};
inline std::vector<Step> steps;
inline std::string shared; // what other programs saw in the store at the last step

inline void push(Step step) {
    watching = false;
    // The three flags, and whether the pending values have become live.
    std::string now =
        bytes(raw(kGlobal) + kBlocks[4].slotOf(8000), 3) + raw(kGlobal)[kBlocks[2].slotOf(6029)];
    for (std::size_t k = 0; k < now.size(); ++k)
        if (!shared.empty() && now[k] != shared[k])
            steps.push_back({k == 3 ? "commit" : "raise " + std::to_string(8000 + k)});
    shared = now;
    if (!step.what.empty()) steps.push_back(std::move(step));
    if (onStep) onStep();
    watching = true;
}

inline void note(const std::string& what, int descriptor = -1, std::string name = {},
                 std::string newName = {}, std::string data = {}) {
    if (!watching) return;
    const int error = errno;
    struct stat status {};
    if (descriptor >= 0) fstatat(descriptor, "", &status, AT_EMPTY_PATH);
    push({S_ISDIR(status.st_mode) ? what + " directory" : what, status.st_ino, std::move(name),
          std::move(newName), std::move(data)});
    errno = error;
}

// Whether this is the call to fail; `moved` is then halved, or the call fails.
inline bool fails(const char* call, const std::string& what = {}, std::size_t* moved = nullptr) {
    if (!watching || (fault == kShort && moved == nullptr) || callsBeforeFault-- != 0) return false;
    failedCall = call;
    if (fault == kShort)
        *moved = (*moved + 1) / 2;
    else if (!what.empty())
        note(what + "!");
    errno = fault;
    return fault != kShort;
}

// The C library's own. On a processor of 32 bits our names are those of its calls with wide sizes and times.
template <typename Function>
Function* next(Function* /*own*/, const char* name) {
    const std::string_view call = name;
    const bool isNarrow = sizeof(long) < sizeof(off_t);
    if (isNarrow && call == "ftruncate") name = "ftruncate64";
    if (isNarrow && call == "clock_gettime") name = "__clock_gettime64";
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace talux_test

// NOLINTBEGIN(misc-definitions-in-headers): included once

#define TALUX_CALL(function, what, parameters, arguments, ...)                                               \
    int function parameters noexcept {                                                                       \
        using namespace talux_test;                                                                          \
        if (fails(#function, what)) return -1;                                                               \
        const int result = next(&function, #function) arguments;                                             \
        if (!std::string(what).empty() && result == 0) note(what __VA_OPT__(, ) __VA_ARGS__);                \
        return result;                                                                                       \
    }

extern "C" {

TALUX_CALL(fchmod, talux::formatted("allow %o", mode), (int file, mode_t mode), (file, mode))
TALUX_CALL(flock, "", (int file, int operation), (file, operation))
TALUX_CALL(ftruncate, "cut", (int file, off_t size), (file, size))
TALUX_CALL(renameat, "rename " + std::string(newName),
           (int from, const char* name, int to, const char* newName), (from, name, to, newName), -1, name,
           newName)
TALUX_CALL(unlinkat, "remove", (int from, const char* name, int flags), (from, name, flags))

int fchown(int file, uid_t owner, gid_t group) noexcept {
    using namespace talux_test;
    const std::string what = "give " + std::to_string(owner) + ":" + std::to_string(group);
    if (fails("fchown", what)) return -1;
    note(what); // whether allowed or not
    return mayGive ? next(&fchown, "fchown")(file, owner, group) : (errno = EPERM, -1);
}
int fsync(int file) { // takes its time on a real disk
    struct stat status {};
    fstat(file, &status);
    const bool isDirectory = S_ISDIR(status.st_mode);
    if (talux_test::fails("fsync", isDirectory ? "sync directory" : "sync")) return -1;
    talux_test::note("sync", file);
    return 0;
}
int close(int file) { // closes even if it fails
    const int result = talux_test::next(&close, "close")(file);
    return talux_test::fails("close") ? -1 : result;
}
int open(const char* path, int flags, ...) {
    using namespace talux_test;
    const std::string name = fs::path(path).filename();
    const std::string what = (flags & O_DIRECTORY) != 0 ? "open directory"
                             : (flags & O_CREAT) != 0   ? "open or make " + name
                                                        : "open " + name;
    EXPECT_TRUE(!watching || (flags & (O_CLOEXEC | O_TRUNC)) == O_CLOEXEC);
    if (fails("open", what)) return -1;
    const int file = next(&open, "open")(path, flags, 0666);
    note(what);
    return file;
}
int openat(int directory, const char* name, int flags, ...) {
    using namespace talux_test;
    const bool makes = (flags & O_CREAT) != 0;
    EXPECT_TRUE(!watching || (flags & (O_CLOEXEC | O_NOFOLLOW | O_TRUNC)) == (O_CLOEXEC | O_NOFOLLOW));
    EXPECT_TRUE(!watching || !makes || (flags & O_EXCL) != 0);
    if (fails("openat", makes ? "make" : "")) return -1;
    const int file = next(&openat, "openat")(directory, name, flags, 0666);
    if (file >= 0 && makes) note("make", file, name);
    return file;
}
ssize_t read(int file, void* block, size_t size) {
    using namespace talux_test;
    const bool endsProcess = fault != EINTR && fault != kShort && fault != kDiskError;
    return !endsProcess && fails("read", {}, &size) ? -1 : next(&read, "read")(file, block, size);
}
ssize_t write(int file, const void* block, size_t size) {
    using namespace talux_test;
    if (fails("write", "write", &size)) return fault == EIO ? errno = 0 : -1; // a device that takes nothing
    note("write", file, {}, {}, {static_cast<const char*>(block), size});
    return next(&write, "write")(file, block, size);
}
int system(const char* /*command*/) {
    return 0;
}
int usleep(useconds_t microseconds) {
    using talux_test::slept;
    if (slept < 0) return talux_test::next(&usleep, "usleep")(microseconds);
    slept += 10; // a kernel with long ticks
    if (talux_test::onSleep) talux_test::onSleep();
    return 0;
}
int clock_gettime(clockid_t clock, timespec* time) noexcept {
    using talux_test::slept;
    if (clock != CLOCK_MONOTONIC || slept < 0)
        return talux_test::next(&clock_gettime, "clock_gettime")(clock, time);
    *time = {slept / 1000, slept % 1000 * 1000000};
    return 0;
}
}

// NOLINTEND(misc-definitions-in-headers)

#endif
