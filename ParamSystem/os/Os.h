// The only access to the operating system: shell, pipe, clock and system log; files and network interfaces
// have their own headers. Nothing else calls the system.
#ifndef TALUX_OS_OS_H
#define TALUX_OS_OS_H

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <ctime>

namespace talux::os {

// Runs a command in the shell and waits for it; its result is not examined.
void runShell(const char* command);

// A command whose standard output can be read; null when it cannot be started.
FILE* openPipe(const char* command);
void closePipe(FILE* pipe);

// A file to read; null when it cannot be opened.
FILE* openStream(const char* path);

// The next character, or EOF. A signal that the host handles meanwhile interrupts neither function.
int readCharacter(FILE* stream);

// The local time now, in the zone that TZ or /etc/localtime names at this moment. On failure `now` is all
// zero and the result false.
bool localTime(std::tm& now);

// Sets the system clock; its result is not examined.
void setClock(std::time_t seconds);

void sleepMicroseconds(unsigned microseconds);

// Since an arbitrary moment; setting the clock does not change it.
std::int64_t monotonicMilliseconds();

// Of any time that can be converted: the years of 64 bits of seconds do not fit into an int.
constexpr long long yearOf(const std::tm& time) {
    return 1900LL + time.tm_year;
}

// Write to the system log with priority informational or error, printf-style.
[[gnu::format(printf, 1, 2)]] void logInfo(const char* format, ...);
[[gnu::format(printf, 1, 2)]] void logError(const char* format, ...);

// The kernel's machine name; empty when it cannot be found out.
void machineName(char* name, std::size_t size);

// Gets the memory of a table that is about to be filled at once instead of page by page, if the kernel can
// (from Linux 5.14 on).
void getMemory(void* table, std::size_t size);

} // namespace talux::os

#endif
