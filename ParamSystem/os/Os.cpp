#include "ParamSystem/os/Os.h"

#include <atomic>
#include <cstdarg>
#include <cstdlib>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <syslog.h>

#include "ParamSystem/support/Text.h"

namespace talux::os {

void runShell(const char* command) {
    // What the command answers is nobody's business here; a variable keeps the compiler content.
    [[maybe_unused]] const int status =
        std::system(command); // NOLINT(cert-env33-c,bugprone-command-processor)
}

FILE* openPipe(const char* command) {
    return popen(command, "r"); // NOLINT(cert-env33-c)
}

void closePipe(FILE* pipe) {
    pclose(pipe);
}

// Reads the time zone file again when it has been exchanged; localtime would do so, and allocate, every time.
static void followTimeZone() {
    static constinit std::atomic<unsigned> known{0};
    struct stat file {};
    const bool exists = stat("/etc/localtime", &file) == 0;
    const unsigned current =
        exists ? static_cast<unsigned>(file.st_ino) * 31 + static_cast<unsigned>(file.st_mtime) : 0U;
    if (known.exchange(current) != current) tzset();
}

bool localTime(std::tm& now) {
    const std::time_t seconds = std::time(nullptr);
    followTimeZone();
    if (localtime_r(&seconds, &now) != nullptr) return true;
    now = std::tm{}; // a failed conversion may leave parts behind
    return false;
}

void setClock(std::time_t seconds) {
    const std::timespec time{seconds, 0};
    clock_settime(CLOCK_REALTIME, &time);
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

} // namespace talux::os
