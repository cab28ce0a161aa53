#include "ParamSystem/os/Os.h"

#include <cstdarg>
#include <cstdlib>
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

bool localTime(std::tm& now) {
    now = std::tm{};
    const std::time_t seconds = std::time(nullptr);
    // localtime, not localtime_r: it notices that the time zone file has been exchanged.
    const std::tm* local = std::localtime(&seconds); // NOLINT(concurrency-mt-unsafe)
    if (local == nullptr) return false;
    now = *local;
    return true;
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
