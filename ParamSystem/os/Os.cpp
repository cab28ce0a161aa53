#include "ParamSystem/os/Os.h"

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdint>
#include <cstdlib>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <syslog.h>
#include <unistd.h>

#include "support/Text.h"

namespace talux::os {

void runShell(const char* command) {
    // The status is not examined; the variable avoids a warning.
    [[maybe_unused]] const int status =
        std::system(command); // NOLINT(cert-env33-c,bugprone-command-processor)
}

FILE* openPipe(const char* command) {
    return popen(command, "re"); // NOLINT(cert-env33-c)
}

void closePipe(FILE* pipe) {
    pclose(pipe);
}

FILE* openStream(const char* path) {
    FILE* stream = nullptr;
    do {
        stream = std::fopen(path, "re");
    } while (stream == nullptr && errno == EINTR);
    return stream;
}

int readCharacter(FILE* stream) {
    for (;;) {
        errno = 0;
        const int character = std::getc(stream);
        if (character != EOF || errno != EINTR) return character;
        std::clearerr(stream);
    }
}

namespace {

constexpr unsigned kFnvPrime = 16777619;

// The time zone of the process: the text of TZ, or without one the zone file as it is now.
unsigned zoneFingerprint() {
    unsigned print = 2166136261;                // FNV-1a
    if (const char* zone = std::getenv("TZ")) { // NOLINT(concurrency-mt-unsafe): as localtime itself
        for (; *zone != '\0'; ++zone)
            print = (print ^ static_cast<unsigned char>(*zone)) * kFnvPrime;
        return print;
    }
    struct stat file {};
    if (stat("/etc/localtime", &file) != 0) return 0;
    return static_cast<unsigned>(file.st_ino) * 31 + static_cast<unsigned>(file.st_mtime);
}

// Makes the C library look again when the zone is another. It would allocate if it looked every time.
void followTimeZone() {
    static constinit std::atomic<unsigned> known{0};
    const unsigned current = zoneFingerprint();
    if (known.exchange(current) != current) tzset();
}

} // namespace

bool localTime(std::tm& now) {
    const std::time_t seconds = std::time(nullptr);
    followTimeZone();
    if (localtime_r(&seconds, &now) != nullptr) return true;
    now = std::tm{}; // a failed conversion may leave some fields set
    return false;
}

void setClock(std::time_t seconds) {
    const std::timespec time{seconds, 0};
    clock_settime(CLOCK_REALTIME, &time);
}

void sleepMicroseconds(unsigned microseconds) {
    usleep(microseconds);
}

std::int64_t monotonicMilliseconds() {
    timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return std::int64_t{now.tv_sec} * 1000 + now.tv_nsec / 1000000;
}

void logInfo(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    vsyslog(LOG_INFO, format, arguments);
    va_end(arguments);
}

void logError(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    vsyslog(LOG_ERR, format, arguments);
    va_end(arguments);
}

void machineName(char* name, std::size_t size) {
    utsname system{};
    copyText(name, size, uname(&system) == 0 ? system.machine : "");
}

void getMemory(void* table, std::size_t size) {
    constexpr int kPopulateWrite = 23; // MADV_POPULATE_WRITE, which older headers do not have
    const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    const std::uintptr_t begin = reinterpret_cast<std::uintptr_t>(table);
    char* const first = static_cast<char*>(table) - begin % page;
    (void)madvise(first, size + begin % page, kPopulateWrite);
}

} // namespace talux::os
